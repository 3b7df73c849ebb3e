// The message box's style parser (ParseMsgStyle) on any style text. The
// parser is plain C++, compiled into this harness without the window.
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/VbText.h"
#include "fuzz/ReaderRuns.h"
#include "ui/MsgStyle.h"

namespace {

// Every style gives a picture of the ten or none, at least one button, each
// button one of the box's numbers, and the same box in capitals.
std::string StyleProblem(const std::string& style) {
    const jv::ui::MsgStyle parsed = jv::ui::ParseMsgStyle(style);
    const int pictures = static_cast<int>(jv::ui::MsgPictureKeywords().size());
    if (parsed.Picture < -1 || parsed.Picture >= pictures) return "picture out of range";
    if (parsed.Buttons.empty() || parsed.Buttons.size() > 3) return "no buttons or too many";
    for (const jv::ui::MsgButton& b : parsed.Buttons)
        if (b.Number < 0 || b.Number > 7 || b.Caption.empty()) return "a button with no caption or a strange number";
    const jv::ui::MsgStyle upper = jv::ui::ParseMsgStyle(jv::Upper(style));
    if (upper.Picture != parsed.Picture || upper.Buttons != parsed.Buttons) return "capitals gave another box";
    return "";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    jv::fuzz::Expect(StyleProblem(std::string(reinterpret_cast<const char*>(data), size)));
    return 0;
}
