// Metafiles written record by record.
#pragma once

#include "picture_tests.h"

namespace quillon::test {

class MadeMetafile {
public:
    MadeMetafile& Add(int function, const std::string& given = {})
    {
        const auto words = static_cast<std::int64_t>(3 + given.size() / 2);
        records_ += Long(words) + Word(function) + given;
        return *this;
    }

    /// Numbers in the order of the record.
    MadeMetafile& Call(int function, const std::vector<int>& words)
    {
        std::string given;
        for (const int word : words)
            given += Word(word);
        return Add(function, given);
    }

    MadeMetafile& Pen(int style, int width, int colour)
    {
        return Add(0x02FA, Word(style) + Word(width) + Word(0) + Long(colour));
    }
    MadeMetafile& Brush(int style, int colour, int hatch = 0)
    {
        return Add(0x02FC, Word(style) + Long(colour) + Word(hatch));
    }
    MadeMetafile& Select(int number) { return Call(0x012D, {number}); }
    /// A brush of one colour and no pen, chosen.
    MadeMetafile& Plain(int colour) { return Brush(0, colour).Pen(5, 0, 0).Select(0).Select(1); }
    MadeMetafile& Window(int left, int top, int width, int height)
    {
        return Call(0x020B, {top, left}).Call(0x020C, {height, width});
    }
    MadeMetafile& Rectangle(int left, int top, int right, int bottom)
    {
        return Call(0x041B, {bottom, right, top, left});
    }
    MadeMetafile& Ellipse(int left, int top, int right, int bottom)
    {
        return Call(0x0418, {bottom, right, top, left});
    }
    MadeMetafile& Polygon(const std::vector<int>& places)
    {
        std::vector<int> words{static_cast<int>(places.size() / 2)};
        words.insert(words.end(), places.begin(), places.end());
        return Call(0x0324, words);
    }

    const std::string& Records() const { return records_; }

    /// With the header and the record at the end.
    std::string File() const
    {
        const std::string records = records_ + Long(3) + Word(0);
        return Word(1) + Word(9) + Word(0x0300) +
               Long(static_cast<std::int64_t>((18 + records.size()) / 2)) + Word(16) + Long(1000) +
               Word(0) + records;
    }

    std::string Placeable(int left, int top, int right, int bottom, int inch = 96) const
    {
        return Long(0x9AC6CDD7) + Word(0) + Word(left) + Word(top) + Word(right) + Word(bottom) +
               Word(inch) + Long(0) + Word(0) + File();
    }

private:
    std::string records_;
};

} // namespace quillon::test
