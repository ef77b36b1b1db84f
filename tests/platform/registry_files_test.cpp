#include "platform/posix/registry_files.h"

namespace quillon {
namespace {

constexpr auto kMachine = RegistryRoot::LocalMachine;
constexpr auto kClasses = RegistryRoot::ClassesRoot;

TEST(RegistryFiles, ReadsTextsDefaultsAndDwords)
{
    RegistryFiles registry;
    ASSERT_TRUE(registry.Add("REGEDIT4\r\n"
                             "\r\n"
                             "; a comment\r\n"
                             "[HKEY_LOCAL_MACHINE\\Software\\Firma AB]\r\n"
                             "@=\"default\"\r\n"
                             "\"Path\"=\"C:\\\\Program\\\\App\"\r\n"
                             "\"Quote\"=\"say \\\"hej\\\"\"\r\n"
                             "\"Count\"=dword:000000ff\r\n"
                             "\"Most\"=dword:FFFFFFFF\r\n"
                             "\"a\\\\b=c\"=\"name\"\r\n"
                             "\"Empty\"=\"\"\r\n"));
    const Text key = "SOFTWARE\\firma ab";
    EXPECT_EQ(registry.Read(kMachine, key, ""), "default");
    EXPECT_EQ(registry.Read(kMachine, key, "PATH"), "C:\\Program\\App");
    EXPECT_EQ(registry.Read(kMachine, key, "Quote"), "say \"hej\"");
    EXPECT_EQ(registry.Read(kMachine, key, "Count"), "255");
    EXPECT_EQ(registry.Read(kMachine, key, "Most"), "4294967295");
    EXPECT_EQ(registry.Read(kMachine, key, "a\\b=c"), "name");
    EXPECT_EQ(registry.Read(kMachine, key, "Empty"), "");
    EXPECT_EQ(registry.Read(kMachine, key, "Missing"), std::nullopt);
    EXPECT_EQ(registry.Read(RegistryRoot::CurrentUser, key, "Path"), std::nullopt);
}

TEST(RegistryFiles, KnowsEveryRoot)
{
    RegistryFiles registry;
    ASSERT_TRUE(registry.Add("REGEDIT4\n[HKEY_CLASSES_ROOT\\k]\n@=\"1\"\n"
                             "[HKEY_CURRENT_USER\\k]\n@=\"2\"\n[HKEY_LOCAL_MACHINE\\k]\n@=\"3\"\n"
                             "[HKEY_USERS\\k]\n@=\"4\"\n[HKEY_CURRENT_CONFIG\\k]\n@=\"5\"\n"
                             "[hkey_dyn_data\\k]\n@=\"6\"\n[HKEY_OTHER\\k]\n@=\"7\"\n"));
    for (int root = 1; root <= 6; ++root)
        EXPECT_EQ(registry.Read(RegistryRoot(root), "k", ""), std::to_string(root));
}

TEST(RegistryFiles, ReadsTheExportOfNewerSystemsInUtf16)
{
    std::string bytes = "\xFF\xFE";
    for (const char character : std::string_view("Windows Registry Editor Version 5.00\r\n"
                                                 "[HKEY_LOCAL_MACHINE\\k]\r\n\"v\"=\"")) {
        bytes += character;
        bytes += '\0';
    }
    bytes.append("\xE5\x00\x3D\xD8\x00\xDE\x00\xD8\x22\x00", 10); // å, a pair, half a pair, "
    RegistryFiles registry;
    ASSERT_TRUE(registry.Add(bytes));
    EXPECT_EQ(registry.Read(kMachine, "K", "V"), "å\xF0\x9F\x98\x80\xEF\xBF\xBD");
}

TEST(RegistryFiles, ReadsTheCodePageAndUtf8)
{
    RegistryFiles registry;
    ASSERT_TRUE(registry.Add("REGEDIT4\n[HKEY_LOCAL_MACHINE\\k]\n\"ansi\"=\"\xE5\xE4\xF6\"\n"));
    ASSERT_TRUE(registry.Add("\xEF\xBB\xBFREGEDIT4\n[HKEY_LOCAL_MACHINE\\k]\n\"utf8\"=\"åäö\"\n"));
    EXPECT_EQ(registry.Read(kMachine, "k", "ansi"), "åäö");
    EXPECT_EQ(registry.Read(kMachine, "k", "utf8"), "åäö");
}

TEST(RegistryFiles, TheLaterFileWinsAndMayRemove)
{
    RegistryFiles registry;
    ASSERT_TRUE(registry.Add("REGEDIT4\n[HKEY_LOCAL_MACHINE\\k]\n\"a\"=\"1\"\n\"b\"=\"1\"\n"
                             "[HKEY_LOCAL_MACHINE\\k\\sub]\n@=\"1\"\n"
                             "[HKEY_LOCAL_MACHINE\\kx]\n@=\"1\"\n"));
    ASSERT_TRUE(registry.Add("REGEDIT4\n[HKEY_LOCAL_MACHINE\\k]\n\"a\"=\"2\"\n\"b\"=-\n"));
    EXPECT_EQ(registry.Read(kMachine, "k", "a"), "2");
    EXPECT_EQ(registry.Read(kMachine, "k", "b"), std::nullopt);
    ASSERT_TRUE(registry.Add("REGEDIT4\n[-HKEY_LOCAL_MACHINE\\k]\n\"c\"=\"2\"\n"));
    EXPECT_EQ(registry.Read(kMachine, "k", "a"), std::nullopt);
    EXPECT_EQ(registry.Read(kMachine, "k", "c"), std::nullopt);
    EXPECT_EQ(registry.Read(kMachine, "k\\sub", ""), std::nullopt);
    EXPECT_EQ(registry.Read(kMachine, "kx", ""), "1");
}

TEST(RegistryFiles, TheClassesRootShowsBothPlacesWhereClassesLive)
{
    RegistryFiles registry;
    ASSERT_TRUE(registry.Add("REGEDIT4\n[HKEY_LOCAL_MACHINE\\Software\\Classes\\.qnp]\n@=\"m\"\n"));
    EXPECT_EQ(registry.Read(kClasses, ".QNP", ""), "m");
    ASSERT_TRUE(registry.Add("REGEDIT4\n[HKEY_CURRENT_USER\\Software\\Classes\\.qnp]\n@=\"u\"\n"));
    EXPECT_EQ(registry.Read(kClasses, ".qnp", ""), "u");
}

TEST(RegistryFiles, PassesOverWhatItCannotRead)
{
    RegistryFiles registry;
    ASSERT_TRUE(registry.Add("REGEDIT4\n\"early\"=\"1\"\n[HKEY_LOCAL_MACHINE\\k]\n"
                             "\"bin\"=hex:01,02,\\\n  03,04\n\"open\"=\"no end\n\"bad\"=dword:xyz\n"
                             "\"none\"\n\"odd\"=\n[\n[]\n[HKEY_LOCAL_MACHINE\\k]\n\"v\"=\"1\""));
    for (const char* name : {"early", "bin", "open", "bad", "none", "odd"})
        EXPECT_EQ(registry.Read(kMachine, "k", name), std::nullopt) << name;
    EXPECT_EQ(registry.Read(kMachine, "k", "v"), "1");
}

TEST(RegistryFiles, ReadsLinesWhoseEndsWereConvertedTwice)
{
    RegistryFiles registry;
    EXPECT_TRUE(registry.Add("REGEDIT4\r\r\n\r\r\n[HKEY_LOCAL_MACHINE\\k]\r\r\n\"v\"=\"1\"\r\r\n"));
    EXPECT_EQ(registry.Read(kMachine, "k", "v"), "1");
}

TEST(RegistryFiles, RefusesWhatIsNoExport)
{
    RegistryFiles registry;
    for (const char* bytes : {"", "[HKEY_LOCAL_MACHINE\\k]\n", "REGEDIT5\n", "\xFF\xFE"})
        EXPECT_FALSE(registry.Add(bytes)) << bytes;
}

} // namespace
} // namespace quillon
