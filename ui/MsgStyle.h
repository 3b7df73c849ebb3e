#pragma once
#include <string>
#include <vector>

namespace jv::ui {

// One button of the message box: its caption and the number it returns.
struct MsgButton {
    std::string Caption;
    int Number = 1;
    bool operator==(const MsgButton&) const = default;
};

// What a style text such as "vbquestion+vbyesno" asks the message box for.
struct MsgStyle {
    int Picture = -1;                 // index into MsgPictureKeywords, -1 none
    std::vector<MsgButton> Buttons;   // left to right
};

// The ten picture keywords, in the order of the box's pictures.
const std::vector<std::string>& MsgPictureKeywords();

// Reads a style text: lower-cased, split at "+", each part trimmed. A picture
// keyword shows its picture, a button keyword sets the buttons (the last one
// wins), other words are ignored; with no button keyword one "Ok" returns 1.
MsgStyle ParseMsgStyle(const std::string& style);

}  // namespace jv::ui
