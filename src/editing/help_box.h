#pragma once
// The help box behind every data window: the help list file read by key, and the table of the
// help codes with the label indexes each window asks for.
//
// A line of the help list file reads "key|title - description|English range|metric range|".
// The key is a window's help code, followed by a label's index for a field. A description may
// go on over lines without a "|", and such lines may also stand before the English range. A
// line with no "|", or with "|" in column 1, is a remark. An empty metric range shows the
// English one; an empty range shows no range line; every entry of a key is shown.
#include <string>
#include <vector>

namespace brooklet {

struct Session;

// Index of the help item when none is shown.
constexpr short NoHelpShown = -999;

// The key of item Index of a window: the code alone for 0, else the code and the index.
std::string HelpKey(const std::string& Code, int Index);

// The text that the help box shows for Key: for each entry of the key, in file order, the title
// line, the description and the range line of the unit system, lines ended by CR LF.
std::string HelpEntries(const std::vector<std::string>& lines, const std::string& Key, bool EnglishUnits);

// Notes Index as the item shown and gives the help box text of the item from the session's
// help list file, in the session's unit system. A missing file gives an empty text.
std::string LoadHelpText(short& Shown, int Index, const std::string& Code, const Session& session);

// A window that asks for help, with its help code and the label indexes it asks for under that
// code; 0 is the window's own entry, asked for by a click on its header.
struct HelpRequests {
    std::string Code;
    std::string Window;
    std::vector<int> Indexes;
};

// The help codes of all windows. frmTc and frmLandUse ask for their fields under the code of the
// sub-area window and for their own entry under a code of their own.
const std::vector<HelpRequests>& HelpCodeTable();

// Every key a window can ask for, and the window entry of every code, each once, in the
// order of the table.
std::vector<std::string> AllHelpKeys();

// The code under which a click on label Index of the window asks for help; empty when that
// label shows no help.
std::string HelpCodeFor(const std::string& Window, int Index);

} // namespace brooklet
