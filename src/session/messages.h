#pragma once
// A message box as the core asks for it: the window layer shows it and returns the answer.
#include <string>

namespace brooklet {

enum class BoxIcon { None, Information, Exclamation, Question, Critical };
enum class BoxButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Cancel, Yes, No };

struct BoxRequest {
    std::string text;
    std::string title;
    BoxButtons buttons = BoxButtons::Ok;
    BoxIcon icon = BoxIcon::None;
    bool operator==(const BoxRequest& other) const {
        return text == other.text && title == other.title && buttons == other.buttons && icon == other.icon;
    }
};

} // namespace brooklet
