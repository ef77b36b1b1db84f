// A product whose setup the tests drive by switches, and a machine that has to be as it was before
// once the product has gone.
#pragma once

#include "wine/folder_state.h"
#include "wine/package.h"
#include "wine/registry_text.h"
#include "wine/sample_product.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <optional>
#include <sstream>

namespace quillon::test {

class SetupSwitches : public testing::Test {
protected:
    static inline const std::string kMainFolder = "C:\\Program Files\\Provpaket Åäö";
    static inline const std::string kEntry =
        "\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Provpaket Åäö";
    static inline const std::string kForAll = "HKLM" + kEntry;
    static inline const std::string kForUser = "HKCU" + kEntry;

    SetupSwitches()
    {
        product.project.Files.rows.clear();
        product.project.Lists = {};
        product.project.Lists.Registry = "HKEY_CURRENT_USER\\SOFTWARE\\Prov :: Mapp=\"%DESTDIR\"";
        product.project.ProgramGroup.ProgramGroup = "Provgrupp";
        product.Add("Data", "a.txt", "innehåll");
        product.project.Files.rows.back()[IconMarker] = "Ikon";
        product.project.Files.rows.back()[IconDesc] = "Provet";
        product.Add("Kanske", "Kanske.txt", "kanske", "", 2);
    }

    void Make()
    {
        package = MakePackage(product.Order({"--medium", "cd"}));
        if (files_.empty())
            Remember();
    }
    /// What an uninstallation has to come back to: the machine as it is now.
    void Remember()
    {
        registry_.emplace(prefix);
        files_ = Files();
    }
    void TearDown() override
    {
        for (const std::string& entry : {kForAll, kForUser})
            if (const auto line = RegistryText(prefix).Value(entry, "QuietUninstallString")) {
                EXPECT_EQ(prefix.RunCommandLine(*line), 0U);
                prefix.WaitForAll();
            }
        ASSERT_TRUE(registry_);
        EXPECT_EQ(RegistryDifference(*registry_, RegistryText(prefix)), "");
        EXPECT_EQ(FolderDifference(files_, Files()), "");
    }
    unsigned Setup(const std::string& switches) const
    {
        return prefix.Run(OnZ(package / "SETUP.EXE"), switches);
    }
    unsigned Uninstall(const std::string& switches) const
    {
        const unsigned code = prefix.Run(kMainFolder + "\\QNXUNIN.EXE", switches);
        prefix.WaitForAll();
        return code;
    }
    bool Has(const std::string& path) const { return std::filesystem::exists(prefix.OnHost(path)); }
    std::string Bytes(const std::string& path) const { return ReadBytes(prefix.OnHost(path)); }

    /// Each line is an object of its own.
    std::vector<nlohmann::json> Records(const std::string& path) const
    {
        std::vector<nlohmann::json> records;
        std::istringstream lines(Bytes(path));
        for (std::string line; std::getline(lines, line);)
            records.push_back(nlohmann::json::parse(line));
        return records;
    }
    nlohmann::json Result(const std::string& path = "C:\\r.json") const
    {
        const auto records = Records(path);
        EXPECT_EQ(records.size(), 1U);
        return records.empty() ? nlohmann::json::object() : records.back();
    }
    bool IsThere() const { return Has(kMainFolder) || RegistryText(prefix).HasKey(kForAll); }
    /// Whether one of the shortcuts below the folder has that name.
    bool HasShortcut(const std::filesystem::path& below, const std::string& name) const
    {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(below))
            if (entry.path().filename() == name)
                return true;
        return false;
    }

    SampleProduct product;
    std::filesystem::path package;
    const WinePrefix prefix;

private:
    /// Drive C: without the logs and the like that the tests ask for.
    FolderState Files() const
    {
        FolderState state = StateOf(prefix.DriveC());
        for (const char* path : {"l.txt", "a.json", "r.json", "plan.json", "svar.inf", "temp.txt",
                                 "script.txt", "driven.txt"})
            state.erase(path);
        std::erase_if(state, [](const auto& entry) {
            return entry.first.starts_with("ut packat") || entry.first.starts_with("windows/inf");
        });
        return state;
    }

    std::optional<RegistryText> registry_;
    FolderState files_;
};

} // namespace quillon::test
