// quillonc set reaches every key of the setup's screen, and show prints it.
#include "edit_workshop.h"

#include "project/design_keys.h"

namespace quillon::test {
namespace {

struct DesignCase {
    std::string name; // section and key, as a user types them
    std::string value;
    std::string shownKey; // the key under which `show` has it
    Json shown;

    std::string Section() const { return name.substr(0, name.find('.')); }
};

bool IsColour(const std::string& key)
{
    return key.find("Color") != std::string::npos && key != "TransparentColorNr" &&
           key != "BoxUseBackColor";
}

/// Each field gets another value than that of a new project and of the fields before it.
class Cases {
public:
    template <class Record, std::size_t count>
    void Add(const std::string& section, const ProjectKey<Record> (&keys)[count],
             const Record& fresh, const std::string& suffix = "")
    {
        for (const ProjectKey<Record>& key : keys)
            all.push_back(std::visit(
                [&](auto field) { return Make(section, key, fresh.*field, suffix); }, key.field));
    }

    std::vector<DesignCase> all;

private:
    template <class Key>
    DesignCase Make(const std::string& section, const Key& key, const Text&,
                    const std::string& suffix)
    {
        const std::string text = std::string("7") + (key.limit > 20 ? key.name : "");
        return {section + "." + key.name + suffix, text, key.name + suffix, text};
    }

    template <class Key, class Number>
    DesignCase Make(const std::string& section, const Key& key, Number fresh,
                    const std::string& suffix)
    {
        const std::string name = section + "." + key.name + suffix;
        const std::string plain = key.name + suffix;
        if (key.form == Stored::AsFlag)
            return {name, fresh == 0 ? "1" : "0", plain, fresh == 0 ? -1 : 0};
        if (IsColour(key.name)) {
            ++colours_;
            const std::string digit = std::to_string(colours_ % 10);
            return {name, "#C0A0" + digit + "f", plain,
                    0x00A0C0 + (0xF + 0x10 * (colours_ % 10)) * 0x10000};
        }
        const int number = NumberFor(key.name, fresh);
        return {name, std::to_string(number), plain, number};
    }

    /// One that the field may have and a new project's has not.
    static int NumberFor(const std::string& key, int fresh)
    {
        if (key == "UnderlineTextOnly" || key == "HidePicturesWhenDialogsShowed")
            return 1 - fresh;
        constexpr int kMaxChoices = 12;
        const bool isChoice = fresh < kMaxChoices && key != "UnderlineHeight";
        return !isChoice ? fresh + 3 : fresh == 1 ? 2 : 1;
    }

    int colours_ = 0;
};

bool IsPixels(const std::string& name)
{
    return name.find("Pos") != std::string::npos && name.find("Twips") == std::string::npos;
}

std::vector<DesignCase> EveryDesignField()
{
    namespace s = section;
    const Project fresh;
    Cases cases;
    cases.Add("DesBackground", s::kDesBackground, fresh.DesBackground);
    cases.Add("DesTitle", s::kDesTitle, fresh.DesTitle);
    cases.Add("DesTitleUnderline", s::kDesTitleUnderline, fresh.DesTitleUnderline);
    cases.Add("DesSubTitle", s::kDesSubTitle, fresh.DesSubTitle);
    cases.Add("DesTextBox", s::kDesTextBox, fresh.DesTextBox);
    cases.Add("DesRTFbox", s::kDesRTFbox, fresh.DesRTFbox);
    for (std::size_t i = 0; i < s::kDesPictureCount; ++i)
        cases.Add("DesPictures", s::kDesPicture, fresh.DesPictures.Pictures[i],
                  std::to_string(i + 1));
    cases.Add("DesPictures", s::kDesPictures, fresh.DesPictures);
    cases.Add("DesPicturesAnim", s::kDesPicturesAnim, fresh.DesPicturesAnim);
    cases.all.push_back({"DesPicturesAnim.P1", "S:\\bild.bmp", "P1", "S:\\bild.bmp"});
    cases.Add("DesLogotype", s::kDesLogotype, fresh.DesLogotype);
    cases.Add("DesPercentGauge", s::kDesPercentGauge, fresh.DesPercentGauge);
    cases.Add("DesSound", s::kDesSound, fresh.DesSound);
    return cases.all;
}

class SetEveryDesignField : public EditWorkshop {};

TEST_F(SetEveryDesignField, AndShowTellsIt)
{
    std::vector<std::string> words = {"set"};
    for (const DesignCase& one : EveryDesignField())
        if (!IsPixels(one.name))
            words.push_back(one.name + "=" + one.value);
    Done(words);
    const Json shown = Show();
    for (const DesignCase& one : EveryDesignField())
        if (!IsPixels(one.name))
            EXPECT_EQ(shown[one.Section()][one.shownKey], one.shown) << one.name;
    ExpectUntouched(words);
    EXPECT_GT(words.size(), 90U);
}

TEST_F(SetEveryDesignField, TakesPlacesInPixelsToo)
{
    std::vector<std::string> words = {"set"};
    for (const DesignCase& one : EveryDesignField())
        if (IsPixels(one.name))
            words.push_back(one.name + "=40");
    ASSERT_EQ(words.size(), 1U + 12U);
    Done(words);
    const Json shown = Show();
    for (const DesignCase& one : EveryDesignField())
        if (IsPixels(one.name)) {
            std::string key = one.shownKey;
            key.insert(key.find("Pos") + 3, "Twips");
            EXPECT_EQ(shown[one.Section()][key], 600) << key;
        }
    ExpectUntouched(words);
    for (const char* value : {"2185", "-2185", "1.5", "", "40px"})
        ExpectRefused({"set", std::string("DesTextBox.BoxXPos=") + value}, 2,
                      "det är ett heltal från -2184 till 2184.");
    Done({"set", "DesTextBox.BoxXPos=-2184"});
    EXPECT_EQ(Show()["DesTextBox"]["BoxXPosTwips"], -32760);
}

TEST_F(SetEveryDesignField, TakesColoursAsTheyAreWrittenElsewhere)
{
    for (const auto& [value, number] : {std::pair{"#FF0000", 255},
                                        {"#00ff00", 65280},
                                        {"#0000FF", 16711680},
                                        {"#FFFFFF", 16777215},
                                        {"#123456", 0x563412},
                                        {"255", 255},
                                        {"-1", -1}}) {
        Done({"set", "DesTitle.TitleForeColor=#000001"});
        Done({"set", std::string("DesTitle.TitleForeColor=") + value});
        EXPECT_EQ(Show()["DesTitle"]["TitleForeColor"], number) << value;
    }
}

TEST_F(SetEveryDesignField, RefusesColoursThatAreNone)
{
    for (const char* value :
         {"#", "#FF", "#FF00000", "#GG0000", "#-10000", "#+10000", "# 10000", "#0x1234", "#12345 "})
        ExpectRefused({"set", std::string("DesBackground.BackColor1=") + value}, 2,
                      "DesBackground.BackColor1 kan ej vara '" + std::string(value) +
                          "'; en färg är #RRGGBB, t.ex. #FF8000, eller ett tal.");
    ExpectRefused({"set", "DesBackground.BackColor1=röd"}, 2, "det är ett heltal från ");
    // The number of a colour's name is none.
    ExpectRefused({"set", "DesLogotype.TransparentColorNr=#FF0000"}, 2,
                  "det är ett heltal från 0 till 11.");
}

} // namespace
} // namespace quillon::test
