// quillonc set reaches every field of what a setup does beside copying: each key of the tables is
// set, saved, and read back by quillonc show.
#include "edit_workshop.h"

#include "project/dialog_keys.h"
#include "project/install_keys.h"
#include "project/list_sections.h"

#include <limits>

namespace quillon::test {
namespace {

struct FieldCase {
    std::string section;
    std::string key;
    std::string value; // as it is typed
    Json shown;
    int limit = 0; // of a text
    bool isNumber = false;

    std::string Name() const { return section + "." + key; }
    std::string Assignment() const { return Name() + "=" + value; }
};

bool IsFlag(Stored form)
{
    return form == Stored::AsFlag || form == Stored::AsFlagOnIfMissing ||
           form == Stored::AsFlagWhenOn || form == Stored::AsFlagReadAsNumber;
}

/// The value that a flag does not have in a new project.
void Turn(FieldCase& one, Stored form, bool isOn)
{
    one.value = std::string(1, isOn ? '0' : '1');
    one.shown = isOn ? 0 : form == Stored::AsFlagReadAsNumber ? 1 : -1;
}

void FillText(FieldCase& one, Stored form, int limit)
{
    one.limit = limit;
    one.value = "Värde av " + one.key;
    one.shown = one.value;
    if (form == Stored::AsLines || form == Stored::AsLongLines) {
        one.value += "\n\nåäö";
        one.shown = ReplaceAll(one.value, "\n", kLineBreak);
    } else if (form == Stored::AsFlagText) {
        one.limit = 0;
        one.value = "0";
        one.shown = "0";
    } else if (form == Stored::AsNumberText) {
        one.limit = 0;
        one.isNumber = true;
        one.value = "3";
        one.shown = "3";
    } else if (one.value.size() >= static_cast<std::size_t>(limit)) {
        one.value = one.value.substr(0, 5);
        one.shown = one.value;
    }
}

template <class Record, std::size_t count>
void AddSection(std::vector<FieldCase>& cases, const char* section,
                const ProjectKey<Record> (&keys)[count], const Record& fresh)
{
    for (const ProjectKey<Record>& key : keys) {
        FieldCase one{section, key.name, {}, {}};
        if (std::holds_alternative<Text Record::*>(key.field))
            FillText(one, key.form, key.limit);
        else if (IsFlag(key.form))
            std::visit(
                [&](auto field) {
                    if constexpr (!std::is_same_v<decltype(field), Text Record::*>)
                        Turn(one, key.form, fresh.*field != 0);
                },
                key.field);
        else
            one = {section, key.name, "1", 1, 0, true};
        cases.push_back(std::move(one));
    }
}

std::vector<FieldCase> EveryField()
{
    namespace s = section;
    const Project fresh;
    std::vector<FieldCase> cases;
    AddSection(cases, "ProgramGroup", s::kProgramGroup, fresh.ProgramGroup);
    AddSection(cases, "InstallOptions", s::kInstallOptions, fresh.InstallOptions);
    AddSection(cases, "TargetOS", s::kTargetOS, fresh.TargetOS);
    AddSection(cases, "InstallOptionsInternet", s::kInstallOptionsInternet,
               fresh.InstallOptionsInternet);
    AddSection(cases, "Sign", s::kSign, fresh.Sign);
    AddSection(cases, "NET", s::kNET, fresh.NET);
    AddSection(cases, "RunAppSelfX", s::kRunAppSelfX, fresh.RunAppSelfX);
    AddSection(cases, "Language", s::kLanguage, fresh.Language);
    AddSection(cases, "Databases", s::kDatabases, fresh.Databases);
    AddSection(cases, "RunAppAfter", s::kRunAppAfter, fresh.RunAppAfter);
    AddSection(cases, "ShowDocAfter", s::kShowDocAfter, fresh.ShowDocAfter);
    AddSection(cases, "FontOptions", s::kFontOptions, fresh.FontOptions);
    AddSection(cases, "DialogBoxes", s::kDialogBoxes, fresh.DialogBoxes);
    AddSection(cases, "DialogBoxData", s::kDialogBoxData, fresh.DialogBoxData);
    AddSection(cases, "LicenseData", s::kLicenseData, fresh.LicenseData);
    AddSection(cases, "RegPrivateVar", s::kRegPrivateVar, fresh.RegPrivateVar);
    AddSection(cases, "Updates", s::kUpdates, fresh.Updates);
    return cases;
}

/// Fields whose value the project keeps only beside others of the same project.
bool HasRulesOfItsOwn(const FieldCase& one)
{
    for (const char* key :
         {"NeverRestartWindows", "DlgBitmap", "LicenseInfoRtfDlg", "DestinationDlg",
          "SelfExtractFilename", "UseInternalRTFBox", "UpdateReferenceFile", "LanguageFile"})
        if (one.key == key)
            return true;
    return false;
}

class SetEveryField : public EditWorkshop {};

TEST_F(SetEveryField, AndReadsItBack)
{
    std::vector<std::string> words = {"set"};
    for (const FieldCase& one : EveryField())
        if (!HasRulesOfItsOwn(one))
            words.push_back(one.Assignment());
    Done(words);
    const Json shown = Show();
    for (const FieldCase& one : EveryField())
        if (!HasRulesOfItsOwn(one))
            EXPECT_EQ(shown[one.section][one.key], one.shown) << one.Name();
    ExpectUntouched(words);
}

TEST_F(SetEveryField, AlsoThoseThatHangOnSomethingElse)
{
    // A restart is either forced or never done; a picture has to be there.
    Done({"set", "InstallOptions.RestartWindows=0", "InstallOptions.NeverRestartWindows=1"});
    EXPECT_EQ(Show()["InstallOptions"]["NeverRestartWindows"], -1);
    disk.Put("src/side.bmp", "BM");
    Done({"set", "DialogBoxes.DlgBitmap=s:\\side.bmp"});
    EXPECT_EQ(Show()["DialogBoxes"]["DlgBitmap"], "s:\\side.bmp");
}

TEST_F(SetEveryField, TakesTextsUpToTheirLimits)
{
    for (const FieldCase& one : EveryField()) {
        if (one.limit == 0 || HasRulesOfItsOwn(one))
            continue;
        std::string text;
        text.resize(static_cast<std::size_t>(one.limit), 'x');
        ExpectRefused({"set", one.Name() + "=" + text}, 2, one.Name() + " rymmer högst ");
        text.pop_back();
        Done({"set", one.Name() + "=" + text});
        EXPECT_EQ(Show()[one.section][one.key], text) << one.Name();
    }
}

TEST_F(SetEveryField, RefusesNumbersBeyondTheirLimits)
{
    int numbers = 0;
    for (const FieldCase& one : EveryField()) {
        if (!one.isNumber)
            continue;
        ++numbers;
        for (const char* value :
             {"32768", "-32769", "2147483648", "-2147483649", "9999999999999999999999"})
            ExpectRefused({"set", one.Name() + "=" + value}, 2,
                          one.Name() + " kan ej vara '" + value + "'; det är ett heltal från ");
    }
    EXPECT_EQ(numbers, 4);
}

TEST_F(SetEveryField, RefusesFlagsThatAreNone)
{
    for (const FieldCase& one : EveryField())
        if (one.limit == 0 && !one.isNumber)
            for (const char* value : {"2", "4294967297"})
                ExpectRefused({"set", one.Name() + "=" + value}, 2,
                              one.Name() + " kan ej vara '" + value + "'; det är på");
}

/// Among them lines that look like a section and almost like the end of the list.
std::string LinesOf(const ListSection& list, std::string_view lineBreak)
{
    std::string text(list.name);
    for (const char* line : {"[1]", "rad 3;å", "", "..."})
        text.append(lineBreak).append(line);
    return text;
}

TEST_F(SetEveryField, SetsEveryListAndReadsItBack)
{
    std::vector<std::string> words = {"set"};
    for (const ListSection& list : kListSections)
        words.push_back(std::string(list.name).append("=").append(LinesOf(list, "\n")));
    Done(words);
    Json shown = Show();
    for (const ListSection& list : kListSections)
        EXPECT_EQ(shown[list.name], LinesOf(list, kLineBreak)) << list.name;
    ExpectUntouched(words);
    words = {"set"};
    for (const ListSection& list : kListSections)
        words.push_back(std::string(list.name).append("="));
    Done(words);
    shown = Show();
    for (const ListSection& list : kListSections)
        EXPECT_EQ(shown[list.name], "") << list.name;
}

} // namespace
} // namespace quillon::test
