#include "wine/self_extracting_program.h"

#include "wine/registry_text.h"

namespace quillon::test {

namespace fs = std::filesystem;

fs::path MakeProgram(SampleProduct& product, std::vector<std::string> options)
{
    options.insert(options.begin(), {"--medium", "internet"});
    const fs::path package = MakePackage(product.Order(std::move(options)));
    EXPECT_TRUE(fs::exists(package / "self.exe"));
    const fs::path folder = package / "Hämtade filer åäö";
    fs::create_directory(folder);
    fs::rename(package / "self.exe", folder / "Prov Åäö.exe");
    return folder / "Prov Åäö.exe";
}

fs::path InstalledFolder(const WinePrefix& prefix)
{
    return prefix.OnHost("C:\\Program Files\\Provpaket Åäö");
}

void ExpectInstalled(const SampleProduct& product, const WinePrefix& prefix)
{
    for (const SampleFile& file : product.Files()) {
        const fs::path installed = prefix.OnHost(file.destination);
        ASSERT_EQ(fs::exists(installed), file.isInstalled) << file.destination;
        if (file.isInstalled)
            EXPECT_TRUE(ReadBytes(installed) == ReadBytes(product.Drive() / file.source))
                << file.destination;
    }
    const RegistryText registry(prefix);
    EXPECT_TRUE(registry.HasKey("HKLM\\Software\\Prov\\Djup\\Nyckel"));
    EXPECT_EQ(registry.Value("HKCU\\Software\\Prov", "Mapp"),
              "C:\\Program Files\\Provpaket Åäö\\Data");
}

std::string LeftOvers(const WinePrefix& prefix)
{
    std::string found;
    for (const auto& entry : fs::recursive_directory_iterator(prefix.DriveC()))
        if (entry.path().filename().string().starts_with("QNEXPAND"))
            found += entry.path().string() + "\n";
    return found;
}

fs::path TempFolderOf(const WinePrefix& prefix)
{
    prefix.Run("C:\\windows\\system32\\cmd.exe", "/c echo %TEMP%> C:\\temp.txt");
    std::string temp = ReadBytes(prefix.DriveC() / "temp.txt");
    temp.erase(temp.find_last_not_of("\r\n ") + 1);
    return prefix.OnHost(temp);
}

std::size_t CountOf(const fs::path& folder)
{
    const fs::directory_iterator files(folder);
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

} // namespace quillon::test
