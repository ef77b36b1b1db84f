#include "cli/field_rules.h"

#include "actions/after_install.h"
#include "actions/dialog_chain.h"
#include "actions/install_options.h"
#include "actions/language_files.h"
#include "actions/update_reference.h"
#include "cli/project_json.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace quillon::cli {

namespace {

using section::DialogBoxes;
using section::InstallOptions;

constexpr const char* kOneAgreement =
    "en installation visar bara en av sidorna LicenseInfoDlg och LicenseInfoRtfDlg";
constexpr const char* kOneDestination =
    "en installation visar bara en av sidorna DestinationDlg och DestinationDriveDlg";
constexpr const char* kIconNeedsSupport =
    "en avinstallationsikon (CreateUninstallIcon) kräver stöd för avinstallation "
    "(UninstallSupport)";
constexpr const char* kOneRestart =
    "datorn startas om alltid (RestartWindows) eller aldrig (NeverRestartWindows), inte båda";
constexpr const char* kRtfAlone =
    "installationsprogrammet visar bara dokument med namntillägget .RTF (DocFileName)";

template <DialogSwitch page>
void SetPage(Project& project, EditAsk&)
{
    const bool ticked = project.DialogBoxes.*page != 0;
    if (ticked)
        PressDialogPage(project.DialogBoxes, page);
    TickDialogPage(project.DialogBoxes, page, ticked);
}

void SetUninstallSupport(Project& project, EditAsk&)
{
    InstallOptions& options = project.InstallOptions;
    ClickUninstallSupport(options, options.UninstallSupport != kOff);
}

void SetUninstallIcon(Project& project, EditAsk&)
{
    InstallOptions& options = project.InstallOptions;
    ClickCreateUninstallIcon(options, options.CreateUninstallIcon != kOff);
}

template <Flag InstallOptions::*option, int row>
void SetRestart(Project& project, EditAsk&)
{
    if (project.InstallOptions.*option != kOff)
        SetRestartRow(project.InstallOptions, row);
}

void SetSelfExtractFilename(Project& project, EditAsk& ask)
{
    if (!CheckSelfExtractFilename(project.InstallOptionsInternet.SelfExtractFilename, ask))
        ask.EndCall();
}

void SetInternalRtfBox(Project& project, EditAsk&)
{
    if (!IsRtfDocument(project.ShowDocAfter.DocFileName))
        project.ShowDocAfter.UseInternalRTFBox = kOff;
}

void SetUpdateReferenceFile(Project& project, EditAsk&)
{
    Text& name = project.Updates.UpdateReferenceFile;
    name = UpdateReferenceName(name);
}

void SetLanguageFile(Project& project, EditAsk& ask)
{
    Text& name = project.Language.LanguageFile;
    if (name.empty())
        return;
    name = LanguageFileName(name);
    if (!CanBeLanguageFile(name, ask))
        ask.EndCall();
}

struct FieldRule {
    const char* section;
    const char* key;
    void (*apply)(Project& project, EditAsk& ask);
    const char* exclusion = nullptr; // why the field's value may not hold beside another's
};

// clang-format off
constexpr FieldRule kRules[] = {
    {"DialogBoxes",            "LicenseInfoDlg",      SetPage<&DialogBoxes::LicenseInfoDlg>,                 kOneAgreement},
    {"DialogBoxes",            "LicenseInfoRtfDlg",   SetPage<&DialogBoxes::LicenseInfoRtfDlg>,              kOneAgreement},
    {"DialogBoxes",            "DestinationDlg",      SetPage<&DialogBoxes::DestinationDlg>,                 kOneDestination},
    {"DialogBoxes",            "DestinationDriveDlg", SetPage<&DialogBoxes::DestinationDriveDlg>,            kOneDestination},
    {"InstallOptions",         "UninstallSupport",    SetUninstallSupport,                                   kIconNeedsSupport},
    {"InstallOptions",         "CreateUninstallIcon", SetUninstallIcon,                                      kIconNeedsSupport},
    {"InstallOptions",         "RestartWindows",      SetRestart<&InstallOptions::RestartWindows, 1>,        kOneRestart},
    {"InstallOptions",         "NeverRestartWindows", SetRestart<&InstallOptions::NeverRestartWindows, 2>,   kOneRestart},
    {"InstallOptionsInternet", "SelfExtractFilename", SetSelfExtractFilename},
    {"ShowDocAfter",           "DocFileName",         SetInternalRtfBox},
    {"ShowDocAfter",           "UseInternalRTFBox",   SetInternalRtfBox,                                     kRtfAlone},
    {"Updates",                "UpdateReferenceFile", SetUpdateReferenceFile},
    {"Language",               "LanguageFile",        SetLanguageFile},
};
// clang-format on

Text NameOf(const FieldRule& rule)
{
    return Text(rule.section) + "." + rule.key;
}

bool IsAmong(const std::vector<Text>& fields, const FieldRule& rule)
{
    return std::ranges::any_of(
        fields, [&](const Text& field) { return EqualIgnoreCase(field, NameOf(rule)); });
}

} // namespace

ChangedFields ApplyFieldRules(Project& project, const std::vector<Text>& fields, EditAsk& ask)
{
    const Json asSet = SettingsJson(project);
    for (const FieldRule& rule : kRules)
        if (IsAmong(fields, rule))
            rule.apply(project, ask);
    const Json kept = SettingsJson(project);
    ChangedFields changed;
    for (const FieldRule& rule : kRules) {
        const Json& value = kept[rule.section][rule.key];
        if (value == asSet[rule.section][rule.key])
            continue;
        if (rule.exclusion && IsAmong(fields, rule))
            throw UsageError{NameOf(rule) + " kan ej ha det värdet: " + rule.exclusion + "."};
        changed.emplace_back(NameOf(rule), ValueText(value));
    }
    return changed;
}

} // namespace quillon::cli
