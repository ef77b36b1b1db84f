#include "archive/solid/solid_table.h"

#include "archive/solid/fields_reader.h"
#include "archive/solid/solid_error.h"
#include "helpers/windows_name.h"

#include <cstdlib>
#include <limits>
#include <memory>

namespace quillon {

namespace {

struct TableCounts {
    std::uint32_t properties = 0;
    std::uint32_t files = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.properties);
        visit(self.files);
    }
};

struct PropertyFields {
    std::uint32_t number = 0;
    std::uint32_t length = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.number);
        visit(self.length);
    }
};

struct FileFields {
    std::uint64_t size = 0;
    std::uint16_t date = 0; // 0 without a time
    std::uint16_t time = 0;
    std::uint32_t attributes = 0;
    std::uint32_t runs = 0;
    std::uint32_t nameLength = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.size);
        visit(self.date);
        visit(self.time);
        visit(self.attributes);
        visit(self.runs);
        visit(self.nameLength);
    }
};

struct RunFields {
    std::uint64_t size = 0;
    std::uint8_t filter = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.size);
        visit(self.filter);
    }
};

void AppendText(zip::Bytes& bytes, const Text& text)
{
    const auto* const begin = reinterpret_cast<const std::byte*>(text.data());
    bytes.insert(bytes.end(), begin, begin + text.size());
}

void AppendFile(zip::Bytes& bytes, const SolidFile& file)
{
    FileFields fields{.size = file.size,
                      .attributes = file.attributes,
                      .runs = static_cast<std::uint32_t>(file.runs.size()),
                      .nameLength = static_cast<std::uint32_t>(file.name.size())};
    if (file.modified) {
        fields.date = zip::DosDate(*file.modified);
        fields.time = zip::DosTime(*file.modified);
    }
    zip::AppendFields(bytes, fields);
    AppendText(bytes, file.name);
    for (const SolidRun& run : file.runs)
        zip::AppendFields(bytes, RunFields{run.size, static_cast<std::uint8_t>(run.filter)});
}

class TableReader : private FieldsReader<RefuseSolid> {
public:
    using FieldsReader::FieldsReader;

    SolidTable Read()
    {
        SolidTable table;
        const auto counts = Take<TableCounts>();
        for (std::uint32_t i = 0; i < counts.properties; ++i)
            table.properties.push_back(TakeProperty());
        for (std::uint32_t i = 0; i < counts.files; ++i)
            table.files.push_back(TakeFile());
        RequireEnd();
        CheckThatNamesDiffer();
        return table;
    }

private:
    SolidProperty TakeProperty()
    {
        const auto fields = Take<PropertyFields>();
        return {fields.number, TakeText(fields.length)};
    }

    SolidFile TakeFile()
    {
        const auto fields = Take<FileFields>();
        SolidFile file{.name = TakeText(fields.nameLength),
                       .size = fields.size,
                       .modified = std::nullopt,
                       .attributes = fields.attributes,
                       .runs = {}};
        if (fields.date != 0)
            file.modified = zip::FromDosTime(fields.date, fields.time);
        Require((fields.attributes & ~SolidAttribute::kAll) == 0, "en fil har okända attribut");
        CheckName(file.name);
        TakeRuns(fields.runs, file);
        return file;
    }

    void TakeRuns(std::uint32_t count, SolidFile& file)
    {
        std::uint64_t left = file.size;
        for (std::uint32_t i = 0; i < count; ++i) {
            const auto fields = Take<RunFields>();
            Require(fields.size > 0 && fields.size <= left, "en fils delar är längre än filen");
            Require(fields.filter <= static_cast<std::uint8_t>(SolidFilter::X86),
                    "en fil har ett okänt filter");
            left -= fields.size;
            file.runs.push_back({fields.size, static_cast<SolidFilter>(fields.filter)});
        }
        Require(left == 0, "en fils delar är kortare än filen");
        Require(file.size <= std::numeric_limits<std::uint64_t>::max() - total_,
                "filerna är för stora");
        total_ += file.size;
    }

    // Texts that `texts_` holds, so that they can be moved about as they are.
    struct Name {
        const Text* text;
        bool isFolder;
    };
    static int CompareNames(const void* left, const void* right)
    {
        return static_cast<const Name*>(left)->text->compare(
            *static_cast<const Name*>(right)->text);
    }
    void AddName(std::string_view name, bool isFolder)
    {
        texts_.push_back(std::make_unique<Text>(LowerCase(name)));
        names_.push_back({texts_.back().get(), isFolder});
    }

    void CheckName(const Text& name)
    {
        std::size_t begin = 0;
        while (true) {
            const std::size_t end = name.find('/', begin);
            const std::string_view part = std::string_view(name).substr(begin, end - begin);
            Require(FaultOfName(part) == PathFault::None, "en fil har ett otillåtet namn");
            if (end == Text::npos)
                break;
            AddName(std::string_view(name).substr(0, end), true);
            begin = end + 1;
        }
        AddName(name, false);
    }

    // No file takes the place of another, or of a folder; a folder may stand in many names.
    void CheckThatNamesDiffer()
    {
        // The C library's sort: that of the other one is a large part of the self-extractor.
        if (!names_.empty())
            std::qsort(names_.data(), names_.size(), sizeof(Name), CompareNames);
        for (std::size_t i = 1; i < names_.size(); ++i)
            Require(*names_[i].text != *names_[i - 1].text ||
                        (names_[i].isFolder && names_[i - 1].isFolder),
                    "två filer har samma namn");
    }

    std::uint64_t total_ = 0;
    std::vector<std::unique_ptr<Text>> texts_; // in lower case
    std::vector<Name> names_;
};

} // namespace

Text SolidTable::Property(std::uint32_t number) const
{
    for (const SolidProperty& property : properties)
        if (property.number == number)
            return property.value;
    return {};
}

std::uint64_t SolidTable::TotalSize() const
{
    std::uint64_t total = 0;
    for (const SolidFile& file : files)
        total += file.size;
    return total;
}

zip::Bytes SolidTableBytes(const SolidTable& table)
{
    zip::Bytes bytes;
    zip::AppendFields(bytes, TableCounts{static_cast<std::uint32_t>(table.properties.size()),
                                         static_cast<std::uint32_t>(table.files.size())});
    for (const SolidProperty& property : table.properties) {
        zip::AppendFields(bytes, PropertyFields{property.number,
                                                static_cast<std::uint32_t>(property.value.size())});
        AppendText(bytes, property.value);
    }
    for (const SolidFile& file : table.files)
        AppendFile(bytes, file);
    return bytes;
}

SolidTable ReadSolidTable(std::span<const std::byte> bytes)
{
    return TableReader(bytes).Read();
}

} // namespace quillon
