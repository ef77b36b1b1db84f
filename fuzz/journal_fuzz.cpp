// Install logs and journals of transactions of any content: what is read comes back from its own
// line, and no record has a key of the system's own removed.
#include "runtime/journal/install_journal.h"
#include "runtime/journal/journal_table.h"
#include "runtime/journal/transaction_journal.h"
#include "runtime/registry/registry_lines.h"

#include <cstdlib>

using namespace quillon;

namespace {

void Check(const std::vector<JournalRecord>& records)
{
    for (const JournalRecord& record : records) {
        const Text line = JournalLine(record);
        const auto* const key = std::get_if<record::UninstallKey>(&record);
        if (line.find_first_of("\r\n") != Text::npos || ReadJournalLine(line) != record ||
            (key && IsSystemKey(key->key)))
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string_view file(reinterpret_cast<const char*>(bytes), size);
    for (const auto& records : {ReadInstallJournal(file), ReadJournal(file, kTransactionJournal)})
        if (records)
            Check(*records);
    return 0;
}
