#include "helpers/code_page.h"

#include "helpers/utf8.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(CodePointOf, KnowsTheUsualPages)
{
    struct Case {
        int codePage;
        unsigned char byte;
        char32_t character;
    };
    const Case cases[] = {
        {1252, 'a', 'a'},   {1252, 0xE5, U'å'},  {1252, 0x80, U'€'},  {1252, 0x81, 0x81},
        {1250, 0xF8, U'ř'}, {1250, 0x80, U'€'},  {1251, 0xFF, U'я'},  {1251, 0xC0, U'А'},
        {1253, 0xE1, U'α'}, {1254, 0xFD, U'ı'},  {1257, 0xE0, U'ą'},  {437, 0x86, U'å'},
        {437, 0x9D, U'¥'},  {850, 0x86, U'å'},   {850, 0x9D, U'Ø'},   {865, 0x9D, U'Ø'},
        {865, 0xAF, U'¤'},  {10000, 0x8C, U'å'}, {10000, 0xDB, U'€'}, {1253, 0xFF, 0xFFFD},
        {932, 'a', 'a'},    {932, 0x83, 0xFFFD}, {0, 0xE5, 0xFFFD},
    };
    for (const Case& one : cases)
        EXPECT_EQ(CodePointOf(one.codePage, one.byte), one.character)
            << one.codePage << " " << static_cast<int>(one.byte);
}

TEST(CodePointOf, GivesEachByteACharacter)
{
    for (const int codePage : {437, 850, 865, 1250, 1251, 1252, 1253, 1254, 1257, 10000})
        for (int byte = 0; byte < 0x100; ++byte) {
            std::string text;
            AppendCodePoint(text, CodePointOf(codePage, static_cast<unsigned char>(byte)));
            EXPECT_TRUE(IsUtf8(text)) << codePage << " " << byte;
        }
}

} // namespace
} // namespace quillon::test
