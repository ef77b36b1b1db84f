#include "runtime/install/net_framework.h"

#include "runtime/support/setup_fixture.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;
using testing::Not;

class NetFrameworkTest : public SetupFixture {
protected:
    NetFrameworkTest()
    {
        project.NET.NET_TestIfInstalled = kOn;
        project.NET.NET_ver10 = kOff;
        project.NET.NET_ver11 = kOn;
        project.NET.NET_WarnIfNoNET = kOff;
        project.NET.NET_StopIfNoNET = kOn;
        AddFile("prog.exe", "%DESTDIR", "program");
    }

    void Write(const Text& subKey, const Text& name, const RegistryData& data)
    {
        const RegistryKey key{RegistryRoot::LocalMachine, "SOFTWARE\\Microsoft\\" + subKey};
        target.MakeKey(key);
        target.WriteValue(key, name, data);
    }
    void PutPolicy(const Text& version, const Text& build)
    {
        Write(".NETFramework\\policy\\" + version, build, TextData("0-" + build));
    }
    void PutSetup(const Text& key, std::uint32_t installed = 1)
    {
        Write("NET Framework Setup\\NDP\\" + key, "Install", NumberData(installed));
    }
};

TEST_F(NetFrameworkTest, FindsTheNewestThatTheRegistryTellsOf)
{
    EXPECT_EQ(InstalledNetFramework(target), std::nullopt);
    // What is no version, and one that is only prepared for.
    Write(".NETFramework\\policy\\Upgrades", "a", TextData("b"));
    target.MakeKey(
        {RegistryRoot::LocalMachine, "SOFTWARE\\Microsoft\\.NETFramework\\policy\\v4.0"});
    PutSetup("v3.5", 0);
    PutSetup("CDF\\v4.0");
    EXPECT_EQ(InstalledNetFramework(target), std::nullopt);
    PutPolicy("v1.0", "3705");
    EXPECT_EQ(InstalledNetFramework(target), (NetVersion{1, 0}));
    PutPolicy("v1.1", "4322");
    EXPECT_EQ(InstalledNetFramework(target), (NetVersion{1, 1}));
    PutSetup("v1.1.4322");
    EXPECT_EQ(InstalledNetFramework(target), (NetVersion{1, 1}));
    PutSetup("v2.0.50727");
    EXPECT_EQ(InstalledNetFramework(target), (NetVersion{2, 0}));
    PutSetup("v3.0");
    EXPECT_EQ(InstalledNetFramework(target), (NetVersion{3, 0}));
    PutSetup("v4\\Client");
    EXPECT_EQ(InstalledNetFramework(target), (NetVersion{4, 0}));
}

TEST_F(NetFrameworkTest, IsNotLookedForUnlessTheProjectSaysSo)
{
    project.NET.NET_TestIfInstalled = kOff;
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_THAT(Log(), Not(HasSubstr(".NET")));
}

TEST_F(NetFrameworkTest, StopsTheSetupBeforeAnythingIsChanged)
{
    PutPolicy("v1.0", "3705");
    const MachineState before = State();
    ScriptedAsk user({{BoxKind::Critical, "Installation av Exempel",
                       "Programmet kräver Microsoft .NET Framework 1.1 eller senare. Installera "
                       "det och försök igen."}});
    ask = &user;
    EXPECT_EQ(Install(""), ExitCode::PrerequisiteMissing);
    EXPECT_EQ(State(), before);
    ask = nullptr;
    EXPECT_EQ(Install("/S"), ExitCode::PrerequisiteMissing);
}

TEST_F(NetFrameworkTest, PassesWithTheVersionOrANewerOne)
{
    PutPolicy("v1.1", "4322");
    EXPECT_EQ(Install(), ExitCode::Done);
    PutSetup("v4\\Full");
    EXPECT_EQ(Install(), ExitCode::Done);
    project.NET.NET_ver10 = kOn;
    project.NET.NET_ver11 = kOff;
    target.keys.clear();
    EXPECT_EQ(Install(), ExitCode::PrerequisiteMissing);
    EXPECT_THAT(Log(), HasSubstr("Framework 1.0 eller senare"));
    PutPolicy("v1.0", "3705");
    EXPECT_EQ(Install(), ExitCode::Done);
}

TEST_F(NetFrameworkTest, WarnsAndGoesByTheAnswer)
{
    project.NET.NET_StopIfNoNET = kOff;
    project.NET.NET_WarnIfNoNET = kOn;
    const Text question = "Programmet kräver Microsoft .NET Framework 1.1 eller senare, som inte "
                          "finns på datorn. Vill du fortsätta ändå?";
    ScriptedAsk no({{BoxKind::YesNo, "Installation av Exempel", question, Answer::No}});
    ask = &no;
    EXPECT_EQ(Install(""), ExitCode::Cancelled);
    ScriptedAsk yes({{BoxKind::YesNo, "Installation av Exempel", question, Answer::Yes}});
    ask = &yes;
    EXPECT_EQ(Install(""), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Microsoft .NET Framework 1.1 eller senare finns inte på datorn"));
}

TEST_F(NetFrameworkTest, WarnsInTheLogAloneWhereNothingIsShown)
{
    project.NET.NET_StopIfNoNET = kOff;
    project.NET.NET_WarnIfNoNET = kOn;
    ScriptedAsk nobody;
    for (const char* switches : {"/S", "/SUPPRESSMSGBOXES"}) {
        ask = &nobody;
        EXPECT_EQ(Install(switches), ExitCode::Done) << switches;
        EXPECT_THAT(Log(),
                    HasSubstr("Microsoft .NET Framework 1.1 eller senare finns inte på datorn"));
    }
}

TEST_F(NetFrameworkTest, AsksNobodyForAPlan)
{
    project.NET.NET_StopIfNoNET = kOff;
    project.NET.NET_WarnIfNoNET = kOn;
    ScriptedAsk user({{BoxKind::Inform, "Installation av Exempel"}});
    ask = &user;
    EXPECT_EQ(Install("/PLAN=L:\\plan.json"), ExitCode::Done);
}

} // namespace
} // namespace quillon::test
