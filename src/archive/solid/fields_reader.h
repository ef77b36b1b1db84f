// Takes a list of files apart that is made of records and of texts whose lengths are in these.
#pragma once

#include "archive/zip_records.h"
#include "helpers/utf8.h"

namespace quillon {

/// `kRefuse` throws; a list that is damaged is not read on.
template <void (*kRefuse)(const char* what)>
class FieldsReader {
public:
    explicit FieldsReader(std::span<const std::byte> bytes) : rest_(bytes) {}

protected:
    static void Require(bool holds, const char* what)
    {
        if (!holds)
            kRefuse(what);
    }

    template <class Record>
    Record Take()
    {
        Record record;
        Require(zip::ReadFields(rest_, record), "förteckningen är kortare än den anger");
        rest_ = rest_.subspan(zip::FieldsSize(record));
        return record;
    }

    std::span<const std::byte> TakeBytes(std::size_t count)
    {
        Require(count <= rest_.size(), "förteckningen är kortare än den anger");
        const auto bytes = rest_.first(count);
        rest_ = rest_.subspan(count);
        return bytes;
    }

    Text TakeText(std::uint32_t length)
    {
        const auto bytes = TakeBytes(length);
        Text text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        Require(IsUtf8(text), "en text i förteckningen är inte UTF-8");
        return text;
    }

    void RequireEnd() const { Require(rest_.empty(), "förteckningen är längre än den anger"); }

private:
    std::span<const std::byte> rest_;
};

} // namespace quillon
