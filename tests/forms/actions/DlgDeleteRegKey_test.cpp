#include "actions/forms/DlgDeleteRegKey.h"

#include "actions/forms/DlgUninstallRegKey.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

template <class Dialog>
class RemoveRegKeyTest : public WindowTest {
protected:
    void SetUp() override { ShowActive(dialog); }

    static constexpr bool kIsDelete = std::is_same_v<Dialog, DlgDeleteRegKey>;

    const Text mark = kIsDelete ? "DELETE=" : "UNINSTALL=";
    Dialog dialog{ask, nullptr};
};

using Dialogs = testing::Types<DlgDeleteRegKey, DlgUninstallRegKey>;
TYPED_TEST_SUITE(RemoveRegKeyTest, Dialogs);

TYPED_TEST(RemoveRegKeyTest, OpensEmpty)
{
    auto& form = this->dialog;
    EXPECT_EQ(form.windowTitle(), this->kIsDelete
                                      ? "Nyckel eller värde som ska raderas vid installation"
                                      : "Nyckel eller värde som ska avlägsnas vid avinstallation");
    EXPECT_EQ(form.objectName(), this->kIsDelete ? "DlgDeleteRegKey" : "DlgUninstallRegKey");
    EXPECT_EQ(form.ComboHKEY->currentText(), "HKEY_CLASSES_ROOT");
    EXPECT_EQ(form.ComboHKEY->count(), 6);
    EXPECT_EQ(TextIn(form, "tSubKey"), "");
    EXPECT_EQ(TextIn(form, "tValue"), "");
    EXPECT_TRUE(form.tSubKey->hasFocus());
}

TYPED_TEST(RemoveRegKeyTest, HelpsWithTheSubkey)
{
    auto& form = this->dialog;
    form.ComboHKEY->setFocus();
    QTest::keyClick(form.ComboHKEY, Qt::Key_Down);
    EXPECT_EQ(TextIn(form, "tSubKey"), "\\SOFTWARE\\");
    QTest::keyClick(form.ComboHKEY, Qt::Key_Up);
    EXPECT_EQ(TextIn(form, "tSubKey"), "");
    Type(form, "tSubKey", "x");
    form.tValue->setFocus();
    EXPECT_EQ(TextIn(form, "tSubKey"), "\\x");
}

TYPED_TEST(RemoveRegKeyTest, MakesALineForTheKeyOrAValue)
{
    auto& form = this->dialog;
    Type(form, "tSubKey", ".txt\\");
    QTest::keyClick(form.tSubKey, Qt::Key_Return);
    EXPECT_TRUE(form.OK);
    EXPECT_EQ(form.Line, this->mark + "HKEY_CLASSES_ROOT\\.txt");
    form.show();
    Type(form, "tValue", "a b");
    Click(form, "cmdOK");
    EXPECT_EQ(form.Line, this->mark + "HKEY_CLASSES_ROOT\\.txt :: a b");
}

TYPED_TEST(RemoveRegKeyTest, StaysOpenWithoutASubkey)
{
    auto& form = this->dialog;
    this->ask.Expect({BoxKind::Inform, "Info", "Ingen subnyckel har definierats!"});
    Type(form, "tValue", "v");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.tSubKey->hasFocus());
    Click(form, "cmdCancel");
    EXPECT_FALSE(form.isVisible());
    EXPECT_FALSE(form.OK);
}

TYPED_TEST(RemoveRegKeyTest, LooksRight)
{
    auto& form = this->dialog;
    Type(form, "tSubKey", "\\Software\\Firma AB");
    SavePicture(form, form.objectName().toStdString());
}

} // namespace
} // namespace quillon::test
