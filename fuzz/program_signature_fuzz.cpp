// Signatures of any content: the input as the signature of a program, over which those of the
// corpus are, and as a whole file. What is reported of it can be printed, and nothing is trusted
// that is not whole.
#include "builder/signing/program_signature.h"

#include "archive/solid/signature_fields.h"
#include "helpers/utf8.h"
#include "require.h"
#include "support/linked_program.h"
#include "support/one_file_host.h"

#include <algorithm>

using namespace quillon;

namespace {

using State = ProgramSignature::State;

void CheckText(const Text& text)
{
    Require(IsUtf8(text));
    Require(std::ranges::none_of(text, [](unsigned char c) { return c < ' ' || c == 0x7F; }));
}

void Read(const std::string& file)
{
    test::BytesInput input(file);
    const ProgramSignature found = ReadProgramSignature(input);
    for (const Text* text :
         {&found.signer, &found.issuer, &found.stamped, &found.stampedBy, &found.fault})
        CheckText(*text);
    Require(!found.isTrusted || found.isIntact);
    Require(found.isTrusted == (found.state == State::Signed && found.fault.empty()));
}

void SetNumber(std::string& bytes, std::uint64_t position, std::size_t number)
{
    for (std::size_t i = 0; i < 4; ++i)
        bytes[static_cast<std::size_t>(position) + i] =
            static_cast<char>(number >> (8 * i) & 0xFFU);
}

/// The program of the corpus with these bytes as its signature.
std::string SignedProgram(const std::string& signature)
{
    std::string file = test::MakeLinkedProgram({});
    file.resize((file.size() + 7) / 8 * 8, '\0');
    const auto fields = FindSignatureFields(std::as_bytes(std::span(file)));
    std::string table(8, '\0');
    SetNumber(table, 0, table.size() + signature.size());
    table[5] = 2; // revision 2.0
    table[6] = 2; // signed data
    table += signature;
    table.resize((table.size() + 7) / 8 * 8, '\0');
    SetNumber(file, fields->entry, file.size());
    SetNumber(file, fields->entry + 4, table.size());
    return file + table;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(bytes), size);
    Read(input);
    Read(SignedProgram(input));
    return 0;
}
