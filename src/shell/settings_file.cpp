#include "shell/settings_file.h"

#include "helpers/windows_path.h"
#include "ini/profile_reader.h"
#include "ini/profile_writer.h"
#include "platform/run_error.h"
#include "platform/saved_file.h"
#include "platform/whole_file.h"
#include "project/unicode_value.h"
#include "shell/command_table.h"
#include "shell/settings_keys.h"

#include <type_traits>

namespace quillon {

namespace {

constexpr const char* kSettingsFileName = "QUILLON.INI";

class SettingsReader {
public:
    SettingsReader(const FileSystem& files, const Text& path) { reader_.SetIniFile(files, path); }

    template <class Section, std::size_t Rows>
    void Keys(const char* section, const SettingKey<Section> (&table)[Rows], Section& record)
    {
        reader_.SetIniSection(section);
        for (const SettingKey<Section>& key : table)
            std::visit([&](auto field) { Read(key.name, key.form, key.limit, record.*field); },
                       key.field);
    }

    void Slot(const char* section, const Text& key, Text& file)
    {
        reader_.SetIniSection(section);
        Read(key, SettingForm::AsText, kRecentFileLimit, file);
    }

private:
    void Read(const Text& key, SettingForm, int limit, Text& value)
    {
        value = UnicodeValueFromFile(reader_.ReadIniString(key, limit));
    }

    void Read(const Text& key, SettingForm form, int, Integer& value)
    {
        if (form == SettingForm::AsNumber)
            value = NumberOr(key, value);
        else if (form == SettingForm::AsSwitchOnIfMissing)
            value = reader_.ReadIniBoolean1(key);
        else
            value = reader_.ReadIniBoolean(key);
    }

    // Larger than any setting.
    void Read(const Text&, SettingForm, int, Long&) {}

    Integer NumberOr(const Text& key, Integer whenUnusable) const
    {
        try {
            return reader_.ReadIniIntegerDefault(key, whenUnusable);
        } catch (const RunError&) {
            return whenUnusable;
        }
    }

    ProfileReader reader_;
};

class SettingsWriter {
public:
    explicit SettingsWriter(std::string& bytes) : bytes_(bytes) {}

    template <class Section, std::size_t Rows>
    void Keys(const char* section, const SettingKey<Section> (&table)[Rows], const Section& record)
    {
        for (const SettingKey<Section>& key : table)
            std::visit(
                [&](auto field) {
                    SetProfileValue(bytes_, section, key.name, OnFile(key, record.*field));
                },
                key.field);
    }

    void Slot(const char* section, const Text& key, const Text& file)
    {
        SetProfileValue(bytes_, section, key, UnicodeValueOnFile(file, kRecentFileLimit));
    }

private:
    template <class Section>
    static Text OnFile(const SettingKey<Section>& key, const Text& value)
    {
        return UnicodeValueOnFile(value, key.limit);
    }

    template <class Section>
    static Text OnFile(const SettingKey<Section>& key, Long value)
    {
        return key.form == SettingForm::AsNumber ? NumberText(value) : value != kOff ? "1" : "0";
    }

    std::string& bytes_;
};

void UseMyDocumentsForEmptyFolders(LastFolders& folders, const Text& myDocuments)
{
    for (const SettingKey<LastFolders>& key : kLastFolders)
        if (Text& folder = folders.*std::get<Text LastFolders::*>(key.field); folder.empty())
            folder = myDocuments;
}

void EmptyFreeSlots(std::array<Text, kRecentFileCount>& files)
{
    for (Text& file : files)
        if (file == kFreeSlot)
            file.clear();
}

void UseFlagsForHiddenTabs(HideTabs& tabs)
{
    for (const SettingKey<HideTabs>& key : kHideTabs)
        if (Integer& hidden = tabs.*std::get<Integer HideTabs::*>(key.field); hidden != kOff)
            hidden = kOn;
}

void UseKnownBarsStyle(WindowOptions& options)
{
    const Integer last = static_cast<Integer>(BarsStyle::Office2003);
    if (options.CBarsCurrentStyle < 0 || options.CBarsCurrentStyle > last)
        options.CBarsCurrentStyle = WindowOptions().CBarsCurrentStyle;
}

void ResetInvalidWindowPlace(WindowPlace& place)
{
    const auto possible = [](Integer length) {
        constexpr Integer kMin = 100;
        constexpr Integer kMax = 16384;
        return length >= kMin && length <= kMax;
    };
    if (!possible(place.Width) || !possible(place.Height))
        place.Width = place.Height = 0;
}

} // namespace

Text SettingsFile(const Machine& machine)
{
    const Text folder = machine.GetSettingsDir();
    return folder.empty() ? Text() : JoinPath(folder, kSettingsFileName);
}

void ReadDataFromIniFile(Session& session)
{
    session.Settings = {};
    SettingsReader reader(session.host.files, SettingsFile(session.host.machine));
    VisitSettings(reader, session);

    UseMyDocumentsForEmptyFolders(session.Settings.Directories,
                                  session.host.machine.GetMyDocumentsDir());
    EmptyFreeSlots(session.RecentFiles);
    UseFlagsForHiddenTabs(session.Settings.HideTabs);
    UseKnownBarsStyle(session.Settings.WindowOptions);
    ResetInvalidWindowPlace(session.Settings.WindowPlace);
}

void WriteDataToIniFile(const Session& session)
{
    FileSystem& files = session.host.files;
    const Text path = SettingsFile(session.host.machine);
    if (path.empty() || !files.DirCreate(ExtractDirectory(path)))
        return;
    try {
        // Another instance of the tool may be changing its own keys.
        const auto lock = LockSavedFile(files, path, LockWait::UntilFree);
        std::string bytes = files.FileExists(path) ? ReadWholeFile(files, path) : std::string();
        SettingsWriter writer(bytes);
        VisitSettings(writer, session);
        SaveWholeFile(files, path, bytes);
    } catch (const RunError&) {
        // A failure is ignored: the next start has the settings of the last one.
    }
}

} // namespace quillon
