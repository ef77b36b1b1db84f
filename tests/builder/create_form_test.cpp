#include "builder/create_form.h"

#include <gtest/gtest.h>

namespace quillon {

namespace {

class Form : public testing::Test {
protected:
    Form()
    {
        project.LastDirectories = {"C:\\Ut", "C:\\Cd", "C:\\Trad", "C:\\Natet"};
        project.Media.TargetMedia = Integer(Medium::CdTree);
    }

    Project project;
    OpenProjectState state;
};

TEST_F(Form, RefusesWhatCannotBeMade)
{
    CreateForm form = OpenCreateForm(project, state);
    EXPECT_EQ(CreateObstacle(form), "");
    form.tDestinationDir = "C:\\" + Text(298, 'x');
    EXPECT_EQ(CreateObstacle(form),
              "Destinationskatalogen är längre än 300 tecken: '" + form.tDestinationDir + "'.");
    form.tDestinationDir = "C:\\Ut";
    form.TargetMedia = Medium::Internet;
    EXPECT_EQ(CreateObstacle(form), "");
}

TEST(ProgressText, CountsMegabytes)
{
    constexpr std::uint64_t kMB = 1024 * 1024;
    EXPECT_EQ(ProgressText(0, 1, ','), "0,0 av 0,0 MB");
    EXPECT_EQ(ProgressText(kMB / 2, 3 * kMB, '.'), "0.5 av 3.0 MB");
    EXPECT_EQ(ProgressText(123 * kMB / 10, 4560 * kMB / 10, ','), "12,3 av 456,0 MB");
    EXPECT_EQ(ProgressText(1500 * kMB, 5000 * kMB, ','), "1500,0 av 5000,0 MB");
}

} // namespace

TEST(Media, AreNamedAsOnTheForm)
{
    EXPECT_STREQ(kMedia[0].caption, "&Diskett");
    EXPECT_STREQ(kMedia[1].caption, "&CD/DVD");
    EXPECT_STREQ(kMedia[2].caption, "CD/DVD (fä&rdigt träd)");
    EXPECT_STREQ(kMedia[3].caption, "&Internet");
    EXPECT_STREQ(kTargetOperatingSystems[0], "Alla Windows-versioner (fr.o.m Windows 95)");
    EXPECT_STREQ(kTargetOperatingSystems[1], "Endast Windows ME, Windows 2000 och Windows XP");
}

TEST_F(Form, OpensWithTheProjectsValues)
{
    project.OperatingSystem.TargetOperatingSystem = 1;
    project.Compression.CompressFiles = kOff;
    project.Compression.KeepCompressedFilesOneAndOne = 1;
    project.Compression.SmallContainer = kOn;
    const CreateForm form = OpenCreateForm(project, state);
    EXPECT_EQ(form.TargetMedia, Medium::CdTree);
    EXPECT_EQ(form.tDestinationDir, "C:\\Ut");
    EXPECT_EQ(form.cbOS, 1);
    EXPECT_EQ(form.UseCompression, 0);
    EXPECT_EQ(form.KeepCompressedFilesOneAndOne, 1);
    EXPECT_EQ(form.SmallContainer, 1);
    EXPECT_TRUE(form.isCmdCreateEnabled);
    EXPECT_TRUE(form.isCmdSelectDirectoryEnabled);
}

TEST_F(Form, OpensOnTheFirstFloppyDrive)
{
    project.Media.TargetMedia = Integer(Medium::Floppy);
    const CreateForm form = OpenCreateForm(project, state);
    EXPECT_EQ(form.tDestinationDir, "A:\\");
    EXPECT_FALSE(form.isCmdSelectDirectoryEnabled);
    EXPECT_EQ(project.LastDirectories.CreatationDestDir, "C:\\Ut");
}

TEST_F(Form, LeavesTheProjectUnmarkedWhenItOpens)
{
    OpenCreateForm(project, state);
    EXPECT_EQ(state.ProjectIsDirty, kOff);
    state.ProjectIsDirty = kOn;
    OpenCreateForm(project, state);
    EXPECT_EQ(state.ProjectIsDirty, kOn);
}

TEST_F(Form, TakesTheDestinationOverAsLastFolderWhenItOpens)
{
    OpenCreateForm(project, state);
    EXPECT_EQ(project.LastDirectories.LastDir_Create_CdTree, "C:\\Ut");
    EXPECT_EQ(project.LastDirectories.LastDir_Create_CdCompress, "C:\\Cd");
}

TEST_F(Form, OpensOnTheCdForAProjectThatNamesNoMedium)
{
    for (const Integer medium : std::initializer_list<Integer>{0, 5, -1}) {
        project.Media.TargetMedia = medium;
        EXPECT_EQ(OpenCreateForm(project, state).TargetMedia, Medium::CompressedCd);
    }
}

TEST_F(Form, OpensOnAllSystemsForAProjectThatNamesAnUnknownOne)
{
    for (const Integer system : std::initializer_list<Integer>{2, -1}) {
        project.OperatingSystem.TargetOperatingSystem = system;
        EXPECT_EQ(OpenCreateForm(project, state).cbOS, 0);
    }
}

TEST_F(Form, PutsItsChoicesBackWhenItCloses)
{
    CreateForm form = OpenCreateForm(project, state);
    form.tDestinationDir = "D:\\Nytt";
    form.TargetMedia = Medium::Internet;
    form.cbOS = 1;
    form.UseCompression = 0;
    form.KeepCompressedFilesOneAndOne = 1;
    form.SmallContainer = 1;
    CloseCreateForm(form, project);
    EXPECT_EQ(project.Compression.SmallContainer, kOn);
    EXPECT_EQ(project.LastDirectories.CreatationDestDir, "D:\\Nytt");
    EXPECT_EQ(project.Media.TargetMedia, Integer(Medium::Internet));
    EXPECT_EQ(project.OperatingSystem.TargetOperatingSystem, 1);
    EXPECT_EQ(project.Compression.CompressFiles, kOff);
    EXPECT_EQ(project.Compression.KeepCompressedFilesOneAndOne, 1);
    form.UseCompression = 1;
    form.SmallContainer = 0;
    CloseCreateForm(form, project);
    EXPECT_EQ(project.Compression.SmallContainer, kOff);
    EXPECT_EQ(project.Compression.CompressFiles, kOn);
}

TEST_F(Form, ShowsEachMediumsLastFolder)
{
    CreateForm form = OpenCreateForm(project, state);
    const std::pair<Medium, const char*> cases[] = {{Medium::Floppy, "A:\\"},
                                                    {Medium::CompressedCd, "C:\\Cd"},
                                                    {Medium::CdTree, "C:\\Ut"},
                                                    {Medium::Internet, "C:\\Natet"}};
    for (const auto& [medium, folder] : cases) {
        state.ProjectIsDirty = kOff;
        ClickMedium(form, medium, project, state);
        EXPECT_EQ(form.TargetMedia, medium);
        EXPECT_EQ(form.tDestinationDir, folder);
        EXPECT_EQ(form.isCmdSelectDirectoryEnabled, medium != Medium::Floppy);
        EXPECT_EQ(state.ProjectIsDirty, kOn);
    }
}

TEST_F(Form, KeepsATypedFolderForItsMedium)
{
    CreateForm form = OpenCreateForm(project, state);
    ClickMedium(form, Medium::Internet, project, state);
    state.ProjectIsDirty = kOff;
    ChangeDestinationDir(form, "D:\\X", project, state);
    EXPECT_EQ(state.ProjectIsDirty, kOn);
    EXPECT_EQ(project.LastDirectories.LastDir_Create_Internet, "D:\\X");

    ClickMedium(form, Medium::Floppy, project, state);
    ChangeDestinationDir(form, "B:\\", project, state);
    EXPECT_EQ(form.tDestinationDir, "B:\\");
    const section::LastDirectories& last = project.LastDirectories;
    for (const Text& folder : {last.CreatationDestDir, last.LastDir_Create_CdCompress,
                               last.LastDir_Create_CdTree, last.LastDir_Create_Internet})
        EXPECT_NE(folder, "B:\\");
}

struct CompressCase {
    Medium medium;
    Integer keep;
    bool useEnabled;
    bool keepEnabled;
    Integer use;
};

TEST(CompressOptions, EnablesByMediumAndChoice)
{
    const CompressCase cases[] = {
        {Medium::Floppy, 0, true, false, 1},      {Medium::Floppy, 1, false, false, 0},
        {Medium::CompressedCd, 0, true, true, 1}, {Medium::CompressedCd, 1, false, true, 0},
        {Medium::CdTree, 0, false, false, 1},     {Medium::CdTree, 1, false, false, 0},
        {Medium::Internet, 0, true, false, 1},    {Medium::Internet, 1, false, false, 0},
    };
    for (const CompressCase& expected : cases) {
        CreateForm form;
        form.TargetMedia = expected.medium;
        form.KeepCompressedFilesOneAndOne = expected.keep;
        const CompressOptionsForm options = OpenCompressOptions(form);
        EXPECT_EQ(options.isCUseCompressionEnabled, expected.useEnabled) << int(expected.medium);
        EXPECT_EQ(options.isCKeepCompressedFilesOneAndOneEnabled, expected.keepEnabled);
        EXPECT_EQ(options.cUseCompression, expected.use);
        EXPECT_EQ(options.cKeepCompressedFilesOneAndOne, expected.keep);
    }
}

TEST(CompressOptions, OfferTheSmallContainerForACdThatIsCompressed)
{
    for (const Medium medium :
         {Medium::Floppy, Medium::CompressedCd, Medium::CdTree, Medium::Internet}) {
        CreateForm form;
        form.TargetMedia = medium;
        form.SmallContainer = 1;
        CompressOptionsForm options = OpenCompressOptions(form);
        EXPECT_EQ(options.cSmallContainer, 1);
        EXPECT_EQ(options.IsCSmallContainerEnabled(), medium == Medium::CompressedCd);
        EXPECT_EQ(MakesSmallContainer(form), medium == Medium::CompressedCd);
        options.cUseCompression = 0;
        EXPECT_FALSE(options.IsCSmallContainerEnabled());
        options.cSmallContainer = 0;
        StoreCompressOptions(options, form);
        EXPECT_EQ(form.SmallContainer, 0);
    }
}

TEST(CompressOptions, MakeNoSmallContainerOfWhatIsNotCompressedTogether)
{
    CreateForm form;
    EXPECT_FALSE(MakesSmallContainer(form));
    form.SmallContainer = 1;
    EXPECT_TRUE(MakesSmallContainer(form));
    form.UseCompression = 0;
    EXPECT_FALSE(MakesSmallContainer(form));
    form.UseCompression = 1;
    form.KeepCompressedFilesOneAndOne = 1;
    EXPECT_FALSE(MakesSmallContainer(form));
}

TEST(CompressOptions, ClearsCompressionWhileFilesAreKeptOneByOne)
{
    CreateForm form;
    CompressOptionsForm options = OpenCompressOptions(form);
    ClickKeepCompressedFilesOneAndOne(options, 1);
    EXPECT_EQ(options.cUseCompression, 0);
    EXPECT_FALSE(options.isCUseCompressionEnabled);
    ClickKeepCompressedFilesOneAndOne(options, 0);
    EXPECT_EQ(options.cUseCompression, 0);
    EXPECT_TRUE(options.isCUseCompressionEnabled);
    EXPECT_EQ(form.UseCompression, 1);

    ClickKeepCompressedFilesOneAndOne(options, 1);
    StoreCompressOptions(options, form);
    EXPECT_EQ(form.UseCompression, 0);
    EXPECT_EQ(form.KeepCompressedFilesOneAndOne, 1);
}

} // namespace quillon
