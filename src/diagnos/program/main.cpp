// Diagnos: describes the machine in a text file beside itself, or where the tool wants it.
#include "diagnos/diagnosis_file.h"
#include "platform/this_host.h"

#include <cstdio>

int main(int argc, char** argv)
{
    using namespace quillon;
    ThisHost host;
    const Text failure = WriteDiagnosisFile(
        {argv + 1, argv + argc}, host.host,
        [&](const Text& root) { return host.files.SizeOf(root); }, host.ProgramFolder());
    if (!failure.empty())
        std::fputs((failure + "\n").c_str(), stderr);
    return failure.empty() ? 0 : 1;
}
