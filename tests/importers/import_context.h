// A machine with a development system on it, and a user of its imports whose answers are laid
// ready.
#pragma once

#include "filelist/options/icon_row.h"
#include "importers/import_work.h"
#include "support/linked_program.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <functional>

namespace quillon::test {

const Text kVbFolder = "C:\\VB";
const Text kRedist = "C:\\VB\\Wizards\\PDWizard\\Redist";
const Text kSystem = "C:\\WINDOWS\\SYSTEM32";
const Text kVbp = "C:\\Proj\\Kund.vbp";
const Text kExe = "C:\\Proj\\Kund.exe";

/// "file: reason" of each file that was not added.
inline std::vector<Text> Missed(const ImportResult& result)
{
    std::vector<Text> files;
    for (const NotAddedFile& file : result.notAdded)
        files.push_back(file.file + ": " + file.Reason());
    return files;
}

/// Gives the answers that the test has set, and keeps the questions.
class DeskUser : public ImportUser {
public:
    std::optional<Text> ChooseProgramDestination(const ProgramQuestion& question) override
    {
        steps.push_back("destination");
        asked = question;
        return destination;
    }
    bool EditIcon(FileListRow& row, const Text& title) override
    {
        steps.push_back("icon");
        iconTitle = title;
        rowAtIcon = row;
        if (iconDescription.empty())
            return false;
        RowIcon icon = IconOf(row);
        icon.isAdded = kOn;
        icon.description = iconDescription;
        SetIcon(row, icon);
        return true;
    }
    void HideDialog() override { steps.push_back("hide"); }
    void ShowDialog() override { steps.push_back("show"); }
    void UpdateStatusBar() override { steps.push_back("status"); }
    bool MayGoOn(const Text& file) override
    {
        seen.push_back(file);
        return seen.size() <= stopAfter;
    }

    std::optional<Text> destination = "%DESTDIR\\Bin";
    Text iconDescription;
    std::size_t stopAfter = 100000;

    ProgramQuestion asked;
    Text iconTitle;
    FileListRow rowAtIcon;
    std::vector<Text> steps;
    std::vector<Text> seen;
};

class ImportContext : public testing::Test {
protected:
    ImportContext()
    {
        project.Files.sorted = false;
        machine.files.Put(kExe, "MZ");
        machine.files.PutFolder(kVbFolder);
        PutAll(kSystem, {"kernel32.dll"});
    }

    void PutAll(const Text& folder, const std::vector<Text>& names)
    {
        for (const Text& name : names)
            machine.files.Put(folder + "\\" + name, "x");
    }
    void Register(const Text& key, const Text& value, const Text& text)
    {
        machine.machine.registry[{RegistryRoot::LocalMachine, key, value}] = text;
    }
    void RegisterTypes(const Text& library, const Text& path)
    {
        machine.machine
            .registry[{RegistryRoot::ClassesRoot, "TypeLib\\" + library + "\\0\\win32", ""}] = path;
    }

    ImportWork Work(Ask& ask)
    {
        return {.list = {project, state, machine.host, ask},
                .user = user,
                .toolFolder = "C:\\Quillon",
                .ownFolder = "C:\\Own"};
    }

    /// "name destination options" of each row.
    std::vector<Text> Rows() const
    {
        std::vector<Text> rows;
        for (const FileListRow& row : project.Files.rows)
            rows.push_back(row[Filename] + " " + row[Destination] + " " + row[CopyOptions]);
        return rows;
    }
    std::vector<Text> RowsFrom(std::size_t first) const
    {
        const std::vector<Text> rows = Rows();
        return {rows.begin() + static_cast<std::ptrdiff_t>(first), rows.end()};
    }
    const FileListRow& Row(const Text& name) const
    {
        for (const FileListRow& row : project.Files.rows)
            if (EqualIgnoreCase(row[Filename], name))
                return row;
        throw std::out_of_range("there is no row " + name);
    }

    MemoryHost machine;
    Project project;
    OpenProjectState state;
    DeskUser user;
};

} // namespace quillon::test
