#include "platform/posix/certificates.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using Name = std::unique_ptr<X509_NAME, Closer<X509_NAME_free>>;

Name NameWith(const char* field, const std::string& value)
{
    Name name(X509_NAME_new());
    EXPECT_EQ(X509_NAME_add_entry_by_txt(name.get(), field, MBSTRING_UTF8,
                                         reinterpret_cast<const unsigned char*>(value.data()),
                                         int(value.size()), -1, 0),
              1);
    return name;
}

TEST(NameIn, IsTheCommonNameOrTheOrganization)
{
    EXPECT_EQ(NameIn(NameWith("CN", "Firma Åke AB").get()), "Firma Åke AB");
    EXPECT_EQ(NameIn(NameWith("O", "Firma AB").get()), "Firma AB");
    EXPECT_EQ(NameIn(NameWith("C", "SE").get()), "");
}

// Otherwise the author of a certificate could add lines to what is reported of it.
TEST(NameIn, HasNoControlCharacters)
{
    EXPECT_EQ(NameIn(NameWith("CN", "Firma\r\nSignatur: giltig.\x1B[2J\x7F\xC2\x9B!").get()),
              "Firma  Signatur: giltig. [2J  !");
    EXPECT_EQ(NameIn(NameWith("CN", std::string("A\0B", 3)).get()), "A B");
}

} // namespace
} // namespace quillon
