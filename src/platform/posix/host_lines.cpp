#include "platform/posix/host_lines.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace quillon {

std::vector<std::string> LinesOfHostFile(const std::string& hostPath)
{
    std::vector<std::string> lines;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(hostPath.c_str(), "re"),
                                                               std::fclose);
    if (!file)
        return lines;
    char* line = nullptr;
    std::size_t room = 0;
    for (ssize_t length = 0; (length = getline(&line, &room, file.get())) >= 0;) {
        std::string text(line, static_cast<std::size_t>(length));
        while (!text.empty() && (text.back() == '\n' || text.back() == '\r'))
            text.pop_back();
        lines.push_back(std::move(text));
    }
    std::free(line);
    return lines;
}

} // namespace quillon
