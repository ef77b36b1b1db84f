#include "actions/forms/DlgTestNETFramework.h"

#include "actions/forms/DlgInstallOptions.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

constexpr const char* kOptions[] = {"oNETver10", "oNETver11", "oWarnIfNoNET", "oStopIfNoNET"};

template <class Dialog>
class NetFrameworkTest : public WindowTest {
protected:
    /// Shows the dialog, where the controls are in view.
    void Open()
    {
        dialog = std::make_unique<Dialog>(session, nullptr);
        if (auto* tabs = dialog->template findChild<QTabWidget*>())
            tabs->setCurrentIndex(1);
        ShowActive(*dialog);
    }
    bool IsTicked(const char* name) { return Find<QAbstractButton>(*dialog, name).isChecked(); }
    bool IsEnabled(const char* name) { return Find<QAbstractButton>(*dialog, name).isEnabled(); }

    section::NET& net = session.project.NET;
    std::unique_ptr<Dialog> dialog;
};

using Dialogs = testing::Types<DlgTestNETFramework, DlgInstallOptions>;
TYPED_TEST_SUITE(NetFrameworkTest, Dialogs);

TYPED_TEST(NetFrameworkTest, ShowsTheTestOfANewProject)
{
    this->Open();
    EXPECT_FALSE(this->IsTicked("cTestIfNETInstalled"));
    EXPECT_TRUE(this->IsTicked("oNETver10"));
    EXPECT_FALSE(this->IsTicked("oNETver11"));
    EXPECT_TRUE(this->IsTicked("oWarnIfNoNET"));
    EXPECT_FALSE(this->IsTicked("oStopIfNoNET"));
    const std::pair<const char*, const char*> captions[] = {
        {"cTestIfNETInstalled", "Testa om Microsoft .NET Framework finns installerad"},
        {"oNETver10", "Minst version 1.0 av .NET Framework måste finnas installerad"},
        {"oNETver11", "Minst version 1.1 av .NET Framework måste finnas installerad"},
        {"oWarnIfNoNET", "Visa en varnings-ruta"},
        {"oStopIfNoNET", "Stoppa installationen"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(Find<QAbstractButton>(*this->dialog, name).text(), caption);
}

TYPED_TEST(NetFrameworkTest, AsksForAVersionOnlyWhereThereIsATest)
{
    this->Open();
    for (const char* option : kOptions)
        EXPECT_FALSE(this->IsEnabled(option)) << option;
    Click(*this->dialog, "cTestIfNETInstalled");
    for (const char* option : kOptions)
        EXPECT_TRUE(this->IsEnabled(option)) << option;
    Click(*this->dialog, "cTestIfNETInstalled");
    for (const char* option : kOptions)
        EXPECT_FALSE(this->IsEnabled(option)) << option;
    this->net.NET_TestIfInstalled = kOn;
    this->Open();
    for (const char* option : kOptions)
        EXPECT_TRUE(this->IsEnabled(option)) << option;
}

TYPED_TEST(NetFrameworkTest, StoresTheChoicesOnOk)
{
    this->Open();
    Click(*this->dialog, "cTestIfNETInstalled");
    Click(*this->dialog, "oNETver11");
    Click(*this->dialog, "oStopIfNoNET");
    EXPECT_FALSE(this->IsTicked("oNETver10"));
    EXPECT_FALSE(this->IsTicked("oWarnIfNoNET"));
    Click(*this->dialog, "cmdOK");
    EXPECT_EQ(this->net.NET_TestIfInstalled, kOn);
    EXPECT_EQ(this->net.NET_ver10, kOff);
    EXPECT_EQ(this->net.NET_ver11, kOn);
    EXPECT_EQ(this->net.NET_WarnIfNoNET, kOff);
    EXPECT_EQ(this->net.NET_StopIfNoNET, kOn);
    EXPECT_EQ(this->session.state.ProjectIsDirty, kOn);
}

TYPED_TEST(NetFrameworkTest, KeepsChoicesThatAreDisabled)
{
    this->net = {kOff, kOff, kOn, kOff, kOn};
    this->Open();
    Click(*this->dialog, "cmdOK");
    EXPECT_EQ(this->net.NET_ver10, kOff);
    EXPECT_EQ(this->net.NET_ver11, kOn);
    EXPECT_EQ(this->net.NET_StopIfNoNET, kOn);
}

TYPED_TEST(NetFrameworkTest, ChangesNothingOnCancel)
{
    this->Open();
    Click(*this->dialog, "cTestIfNETInstalled");
    Click(*this->dialog, "oNETver11");
    Click(*this->dialog, "cmdCancel");
    EXPECT_EQ(this->net.NET_TestIfInstalled, kOff);
    EXPECT_EQ(this->net.NET_ver11, kOff);
    EXPECT_EQ(this->session.state.ProjectIsDirty, kOff);
}

class DlgTestNETFrameworkTest : public WindowTest {};

TEST_F(DlgTestNETFrameworkTest, LooksRight)
{
    session.project.NET.NET_TestIfInstalled = kOn;
    DlgTestNETFramework form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.cTestIfNETInstalled->hasFocus());
    SavePicture(form, "DlgTestNETFramework");
    SaveDarkPicture(form, "DlgTestNETFramework");
}

} // namespace
} // namespace quillon::test
