#include "formats/install_journal_name.h"

#include "formats/runtime_programs.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"

namespace quillon {

namespace {

constexpr std::string_view kName = RuntimePrograms::kInstallJournal;
constexpr std::string_view kStem = kName.substr(0, kName.find('.'));
constexpr std::string_view kEnding = kName.substr(kStem.size());

} // namespace

Text InstallJournalName(int number)
{
    return Text(kStem) + (number == 1 ? Text() : NumberText(number)) + Text(kEnding);
}

bool IsInstallJournalName(std::string_view name)
{
    const Text upper = UpperCase(name);
    return upper.starts_with(kStem) && upper.find('.') == upper.size() - kEnding.size() &&
           upper.ends_with(kEnding);
}

} // namespace quillon
