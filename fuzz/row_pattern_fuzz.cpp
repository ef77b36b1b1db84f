// Row patterns of any content over lists of any names: the rows come back in rising order, each of
// them is one that a pattern means, and a pattern that means none is refused and never ignored.
#include "cli/call_context.h"
#include "cli/row_pattern.h"
#include "helpers/ansi_text.h"
#include "require.h"

#include <algorithm>

using namespace quillon;

namespace {

constexpr std::size_t kMaxNames = 40;
constexpr std::size_t kMaxTextLength = 200; // the plain comparison below takes the product of two

/// The lines of the input: names of rows up to an empty line, then patterns.
struct Input {
    FileList list;
    std::vector<std::string> patterns;
};

Input InputOf(std::string_view bytes)
{
    Input input;
    bool isName = true;
    while (!bytes.empty()) {
        const std::string line(bytes.substr(0, bytes.find('\n')));
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
        if (isName && line.empty())
            isName = false;
        else if (isName && input.list.rows.size() < kMaxNames)
            input.list.rows.emplace_back()[Filename] =
                AnsiText::FromBytes(line.substr(0, kMaxTextLength));
        else if (!isName)
            input.patterns.push_back(line.substr(0, kMaxTextLength));
    }
    return input;
}

/// Whether the name fits, worked out place by place.
bool Fits(std::string_view name, std::string_view pattern)
{
    std::vector<bool> ends(name.size() + 1); // the pattern so far fits the first n characters
    ends[0] = true;
    for (const char letter : pattern) {
        std::vector<bool> next(ends.size());
        for (std::size_t n = 0; n < ends.size(); ++n) {
            if (letter == '*')
                next[n] = ends[n] || (n > 0 && next[n - 1]);
            else if (n > 0 && ends[n - 1])
                next[n] = letter == '?' || letter == name[n - 1];
        }
        ends = std::move(next);
    }
    return ends.back();
}

void SelectBy(const FileList& list, const std::vector<std::string>& patterns)
{
    std::vector<std::size_t> rows;
    try {
        rows = cli::SelectRows(list, patterns);
    } catch (const cli::CallFailure&) {
        return;
    } catch (const cli::UsageError&) {
        return;
    }
    Require(!rows.empty() || patterns.empty());
    Require(std::is_sorted(rows.begin(), rows.end()));
    Require(std::adjacent_find(rows.begin(), rows.end()) == rows.end());
    Require(rows.empty() || rows.back() < list.rows.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const Input input = InputOf({reinterpret_cast<const char*>(bytes), size});
    SelectBy(input.list, input.patterns);
    for (const std::string& pattern : input.patterns) {
        SelectBy(input.list, {pattern});
        for (const FileListRow& row : input.list.rows)
            Require(cli::FitsWildcards(row[Filename], pattern) == Fits(row[Filename], pattern));
    }
    return 0;
}
