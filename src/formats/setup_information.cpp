#include "formats/setup_information.h"

#include "formats/scramble.h"
#include "formats/section_document.h"
#include "formats/setup_information_table.h"
#include "helpers/ansi_text.h"
#include "helpers/line_breaks.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

template <class Number>
Number ClampToType(std::int64_t number)
{
    return Number(std::clamp<std::int64_t>(number, std::numeric_limits<Number>::min(),
                                           std::numeric_limits<Number>::max()));
}

template <class Number>
Number NumberOf(InfForm form, const Text& value)
{
    const std::int64_t number = LeadingNumber(value);
    switch (form) {
    case InfForm::AsBool:
        return number == 1 ? kOn : kOff;
    case InfForm::AsPxX:
    case InfForm::AsPxY:
        return ClampToType<Number>(std::int64_t{ClampToType<Number>(number)} * kTwipsPerPixel);
    default: // The placeholder of a count that never came is no number, so it reads as 0.
        return ClampToType<Number>(number);
    }
}

Text TextOf(InfForm form, const Text& value)
{
    switch (form) {
    case InfForm::AsBool:
        return NumberText(NumberOf<Flag>(form, value));
    case InfForm::AsMulti:
        return DecodeLineBreaks(value);
    case InfForm::AsScramble:
        return UnscrambleString(value);
    default:
        return value;
    }
}

template <class Record>
struct ValueReader {
    Record& record;
    InfForm form;
    const Text& value;

    void operator()(Text Record::*field) const { record.*field = TextOf(form, value); }
    void operator()(Integer Record::*field) const
    {
        record.*field = NumberOf<Integer>(form, value);
    }
    void operator()(Long Record::*field) const { record.*field = NumberOf<Long>(form, value); }
};

struct SectionNames {
    std::vector<DocumentSection> names;

    template <class... Parts>
    void operator()(const char* name, const Parts&...)
    {
        names.push_back({name});
    }
    void FreeText(const char* name, const Text&)
    {
        names.push_back({name, DocumentSection::Kind::List});
    }
    void MarkedLines(const char* name, const Text& text) { FreeText(name, text); }
};

Text JoinLines(const std::vector<Text>& lines)
{
    Text text;
    for (std::size_t i = 0; i < lines.size(); ++i)
        text.append(i == 0 ? "" : kLineBreak).append(lines[i]);
    return text;
}

// Fills the records from what the file holds; a key or section that is not there leaves its field.
class SectionReader {
public:
    explicit SectionReader(const SectionDocument& frame) : frame_(frame) {}

    template <class... Parts>
    void operator()(const char* name, const Parts&... parts)
    {
        if (const DocumentSection* const section = frame_.Find(name))
            (Read(*section, parts), ...);
    }

    void FreeText(const char* name, Text& text)
    {
        if (const DocumentSection* const section = frame_.Find(name))
            text = JoinLines(section->lines);
    }

    void MarkedLines(const char* name, Text& text)
    {
        const DocumentSection* const section = frame_.Find(name);
        if (!section)
            return;
        std::vector<Text> lines = section->lines;
        for (Text& line : lines)
            line.erase(0, 1);
        text = JoinLines(lines);
    }

private:
    template <class Record, std::size_t N>
    void Read(const DocumentSection& section, const InfKeys<Record, N>& part)
    {
        for (std::size_t i = 0; i < N; ++i) {
            const InfKey<Record>& key = part.keys[i];
            const Text name = key.name + part.suffix;
            const bool goesOn = key.form == InfForm::AsRawLines && i + 1 < N;
            const auto value = goesOn ? section.ValueUpTo(name, part.keys[i + 1].name + part.suffix)
                                      : section.Value(name);
            if (value)
                std::visit(ValueReader<Record>{part.record, key.form, *value}, key.field);
        }
    }

    void Read(const DocumentSection&, const InfUseFlag&) {}

    void Read(const DocumentSection& section, const InfAnimPictures& part)
    {
        const int last = std::min<int>(part.record.NrAnimPictures, int(part.record.P.size()));
        for (int n = 1; n <= last; ++n)
            part.record.P[std::size_t(n) - 1] = section.Value("P" + NumberText(n)).value_or("");
    }

    void Read(const DocumentSection& section, const InfComponents& part)
    {
        for (std::size_t n = 1; n <= part.components.size(); ++n) {
            section::FileComponent& component = part.components[n - 1];
            Read(section, NumberedKeys(inf::kFileComponent, component, n));
            Read(section, NumberedKeys(inf::kFileComponentUpdate, component, n));
        }
    }

    const SectionDocument& frame_;
};

std::vector<DocumentSection> KnownSections()
{
    Project project;
    SetupInformation info;
    SectionNames collector;
    EachInfSection(project, info, collector);
    return std::move(collector.names);
}

} // namespace

SetupInformation ReadSetupInformation(std::string_view bytes)
{
    const SectionDocument frame =
        ReadSectionDocument(AnsiText::FromBytes(bytes), kSetupInformationType, KnownSections());
    SetupInformation info;
    info.isWhole = frame.isWhole;
    info.toolVersion = frame.toolVersion;
    info.isPreview = frame.subType == kPreviewSubType;
    SectionReader reader(frame);
    EachInfSection(info.project, info, reader);
    return info;
}

} // namespace quillon
