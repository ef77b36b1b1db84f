// What a user does on the pages of a setup, as lines of a script for `programs/drive_setup.cpp`.
#pragma once

#include "runtime/pages/page.h"
#include "wine/wine.h"

namespace quillon::test {

// The buttons of pages and boxes.
inline constexpr int kNext = 1;
inline constexpr int kCancel = 2;
inline constexpr int kBack = 3;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;
// The codes of keys.
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kDown = 40;

inline int IdOf(PageField field)
{
    return 100 + static_cast<int>(field);
}

/// The lines of a script, as `drive_setup` takes them.
class Script {
public:
    Script& Page(const std::string& title) { return Add("page " + title); }
    Script& Press(int id) { return Add("press " + std::to_string(id)); }
    Script& Press(PageField field) { return Press(IdOf(field)); }
    Script& Next() { return Press(kNext); }
    Script& Back() { return Press(kBack); }
    Script& Type(PageField field, const std::string& text)
    {
        return Add("type " + std::to_string(IdOf(field)) + " " + text);
    }
    Script& Choose(PageField field, int row)
    {
        return Add("choose " + std::to_string(IdOf(field)) + " " + std::to_string(row));
    }
    Script& Key(int id, int code)
    {
        return Add("key " + std::to_string(id) + " " + std::to_string(code));
    }
    /// The same wherever the focus is on the page.
    Script& Tap(int code) { return Add("tap " + std::to_string(code)); }
    Script& Alt(char letter) { return Add(std::string("alt ") + letter); }
    /// Presses Tab so often, and logs each time where the focus is then.
    Script& Tabs(int count)
    {
        for (int i = 0; i < count; ++i)
            Add("tab");
        return *this;
    }
    Script& Focus(int id) { return Add("focus " + std::to_string(id)); }
    Script& Focus(PageField field) { return Focus(IdOf(field)); }
    Script& Read(PageField field) { return Add("read " + std::to_string(IdOf(field))); }
    Script& Margin(PageField field) { return Add("margin " + std::to_string(IdOf(field))); }
    Script& Await(PageField field, const std::string& text)
    {
        return Add("await " + std::to_string(IdOf(field)) + " " + text);
    }
    Script& Box(int button) { return Add("box " + std::to_string(button)); }
    Script& Controls() { return Add("controls"); }
    Script& Close() { return Add("close"); }
    Script& Shoot(const std::filesystem::path& bitmap) { return Add("shot " + OnZ(bitmap)); }
    Script& Clipped() { return Add("clipped"); }
    /// Runs another program to its end and logs its code.
    Script& Run(const std::string& command) { return Add("other " + command); }
    Script& Screen() { return Add("screen"); }
    Script& Escape() { return Add("escape"); }
    Script& End() { return Add("end"); }

    std::string Text(const std::string& command) const { return "run " + command + "\n" + lines_; }

private:
    Script& Add(const std::string& line)
    {
        lines_ += line + "\n";
        return *this;
    }

    std::string lines_;
};

} // namespace quillon::test
