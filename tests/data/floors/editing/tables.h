#pragma once
// A file of the editing floor.
