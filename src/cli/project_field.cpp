#include "cli/project_field.h"

#include "cli/number_ranges.h"
#include "helpers/ansi_text.h"
#include "helpers/line_breaks.h"
#include "project/list_sections.h"
#include "project/project_file.h"
#include "project/section_walk.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>

namespace quillon::cli {

namespace {

constexpr std::size_t kMaxMarkedListLength = 32767;
constexpr const char* kComponents = "FileComponents";
constexpr std::string_view kOneComponent = "FileComponent";

template <class Number>
constexpr NumberRange kAnyNumber{std::numeric_limits<Number>::min(),
                                 std::numeric_limits<Number>::max()};
constexpr NumberRange kAnyInteger = kAnyNumber<Integer>;
constexpr NumberRange kAnyLong = kAnyNumber<Long>;

bool IsFlag(Stored form)
{
    return form == Stored::AsFlag || form == Stored::AsFlagOnIfMissing ||
           form == Stored::AsFlagWhenOn || form == Stored::AsFlagReadAsNumber ||
           form == Stored::AsFlagText;
}

/// Of the numbers of 32 bits, those of a colour say so in their names.
bool IsColour(std::string_view key)
{
    return ContainsText(key, "Color");
}

// A value on its way into a field, and all that can be wrong with it.
class NewValue {
public:
    NewValue(const Text& field, const Text& value) : field_(field), value_(value)
    {
        if (!AnsiText::Holds(value))
            Refuse("kan ej vara '" + value + "': det har tecken som inte kan lagras i projektet.");
    }

    Text TextFor(Stored form, int limit, NumberRange range = kAnyInteger) const
    {
        if (form == Stored::AsFlagText)
            return NumberText(IsOn() ? kOn : kOff);
        if (form == Stored::AsNumberText)
            return NumberText(NumberIn(range));
        const bool hasLines = form == Stored::AsLines || form == Stored::AsLongLines;
        const Text text = hasLines ? WithWindowsLineEnds(value_) : value_;
        if (!hasLines && text.find_first_of("\r\n") != Text::npos)
            Refuse("ryms på en rad; värdet har flera.");
        RequireLength(AnsiText::ToBytes(EncodeLineBreaks(text)).size(),
                      static_cast<std::size_t>(limit - 1));
        return text;
    }

    /// "#RRGGBB", as a colour is written elsewhere, or the number that the project keeps.
    Long ColourFor() const
    {
        if (!value_.starts_with('#'))
            return static_cast<Long>(NumberIn(kAnyLong));
        constexpr std::size_t kDigits = 6;
        std::uint32_t rgb = 0;
        const char* const end = value_.data() + value_.size();
        const auto [last, fault] = std::from_chars(value_.data() + 1, end, rgb, 16);
        if (value_.size() != kDigits + 1 || fault != std::errc() || last != end)
            Refuse("kan ej vara '" + value_ +
                   "'; en färg är #RRGGBB, t.ex. #FF8000, eller ett tal.");
        return static_cast<Long>((rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16);
    }

    /// Pixels of a screen of normal size, kept in twips.
    Integer TwipsFor(int twipsPerPixel) const
    {
        const NumberRange pixels{kAnyInteger.first / twipsPerPixel,
                                 kAnyInteger.last / twipsPerPixel};
        return static_cast<Integer>(NumberIn(pixels) * twipsPerPixel);
    }

    template <class Number>
    Number NumberFor(Stored form, NumberRange range) const
    {
        if (!IsFlag(form))
            return static_cast<Number>(NumberIn(range));
        const bool isRead1 = form == Stored::AsFlagReadAsNumber;
        return static_cast<Number>(!IsOn() ? kOff : isRead1 ? 1 : kOn);
    }

    Text ListText(ListSection::Lines lines) const
    {
        const Text text = WithWindowsLineEnds(value_);
        if (lines == ListSection::Lines::Marked)
            RequireLength(AnsiText::ToBytes(text).size(), kMaxMarkedListLength);
        return text;
    }

    [[noreturn]] void Refuse(const Text& why) const { throw UsageError{field_ + " " + why}; }

private:
    std::int64_t NumberIn(NumberRange range) const
    {
        const std::int64_t number = LeadingNumber(value_);
        if (NumberText(number) != value_ || number < range.first || number > range.last)
            Refuse("kan ej vara '" + value_ + "'; det är ett heltal från " +
                   NumberText(range.first) + " till " + NumberText(range.last) + ".");
        return number;
    }

    bool IsOn() const
    {
        if (value_ == "1" || value_ == "-1")
            return true;
        if (value_ != "0")
            Refuse("kan ej vara '" + value_ + "'; det är på (1 eller -1) eller av (0).");
        return false;
    }

    void RequireLength(std::size_t length, std::size_t maxLength) const
    {
        if (length > maxLength)
            Refuse("rymmer högst " + NumberText(static_cast<std::int64_t>(maxLength)) +
                   " tecken; värdet har " + NumberText(static_cast<std::int64_t>(length)) + ".");
    }

    const Text& field_;
    const Text& value_;
};

/// Walks the tables that the project file's writer and reader walk.
class FieldSetter {
public:
    FieldSetter(const Text& section, const Text& key, const NewValue& value)
        : section_(section), key_(key), value_(value)
    {
    }

    bool hasSection = false;
    bool hasKey = false;

    void Begin(const char* name)
    {
        isHere_ = EqualIgnoreCase(name, section_);
        hasSection = hasSection || isHere_;
    }
    void End() {}

    template <class Record, std::size_t count>
    void Section(const char* name, const ProjectKey<Record> (&keys)[count], Record& record)
    {
        Begin(name);
        Keys(keys, record);
    }

    template <class Record, std::size_t count>
    void Keys(const ProjectKey<Record> (&keys)[count], Record& record)
    {
        for (const auto& key : keys)
            Put(key, key.name, record);
    }

    template <class Record, std::size_t count>
    void Keys(const ProjectKey<Record> (&keys)[count], Record& record, int number)
    {
        for (const auto& key : keys)
            Put(key, key.name + NumberText(number), record);
    }

    void NumberedText(const char* key, int number, Text& text, int limit)
    {
        if (IsMeant(key + NumberText(number)))
            text = value_.TextFor(Stored::AsText, limit);
    }

private:
    bool IsMeant(const Text& name)
    {
        const bool isMeant = isHere_ && EqualIgnoreCase(name, key_);
        hasKey = hasKey || isMeant;
        return isMeant;
    }

    template <class Record>
    void Put(const ProjectKey<Record>& key, const Text& name, Record& record)
    {
        if (!IsMeant(name))
            return;
        if (IsPixels(key.form))
            record.*std::get<Integer Record::*>(key.field) = value_.TwipsFor(
                key.form == Stored::AsPixelsX ? ScreenMetrics().TPPX : ScreenMetrics().TPPY);
        else if (const auto text = std::get_if<Text Record::*>(&key.field))
            record.** text =
                value_.TextFor(key.form, key.limit, RangeOf(section_, key.name, kAnyInteger));
        else if (const auto number = std::get_if<Integer Record::*>(&key.field))
            record.** number =
                value_.NumberFor<Integer>(key.form, RangeOf(section_, key.name, kAnyInteger));
        else if (IsColour(key.name))
            record.*std::get<Long Record::*>(key.field) = value_.ColourFor();
        else
            record.*std::get<Long Record::*>(key.field) =
                value_.NumberFor<Long>(key.form, RangeOf(section_, key.name, kAnyLong));
    }

    const Text& section_;
    const Text& key_;
    const NewValue& value_;
    bool isHere_ = false;
};

struct Address {
    Text section;
    Text key;
};

// A single component has its number after the section, as a person says it; the file has it after
// the key.
Address AddressOf(const Text& field)
{
    const std::size_t dot = field.find('.');
    Address address{field.substr(0, dot), field.substr(dot + 1)};
    const Text number =
        address.section.substr(std::min(kOneComponent.size(), address.section.size()));
    const bool isOne = number.size() == 1 && number[0] >= '1' && number[0] <= '9' &&
                       EqualIgnoreCase(address.section, Text(kOneComponent) + number);
    return isOne ? Address{kComponents, address.key + number} : address;
}

void SetList(Project& project, const Text& field, const NewValue& value)
{
    const auto list =
        std::find_if(std::begin(kListSections), std::end(kListSections),
                     [&](const ListSection& other) { return EqualIgnoreCase(other.name, field); });
    if (list == std::end(kListSections))
        throw UsageError{"'" + field +
                         "' är varken en lista eller ett avsnitt med en nyckel, som "
                         "Version.ProductName."};
    project.Lists.*list->text = value.ListText(list->lines);
}

} // namespace

void SetField(Project& project, const Text& field, const Text& value)
{
    const NewValue newValue(field, value);
    if (field.find('.') == Text::npos)
        return SetList(project, field, newValue);

    const Address address = AddressOf(field);
    FieldSetter setter(address.section, address.key, newValue);
    try {
        VisitSettingsSections(setter, project);
    } catch (const RunError&) {
        newValue.Refuse("kan ej vara '" + value + "'; projektet rymmer högst " +
                        NumberText(static_cast<std::int64_t>(section::kMaxAnimPictures)) +
                        " bilder.");
    }
    setter.Begin(kComponents);
    VisitComponents(setter, project);
    if (!setter.hasSection)
        throw UsageError{"Projektet har inget avsnitt '" + address.section + "'."};
    if (!setter.hasKey)
        throw UsageError{"Avsnittet " + address.section + " har ingen nyckel '" + address.key +
                         "'."};
}

} // namespace quillon::cli
