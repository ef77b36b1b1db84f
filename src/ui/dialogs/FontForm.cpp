#include "ui/dialogs/FontForm.h"

#include "helpers/ansi_text.h"
#include "platform/ask.h"
#include "ui/controls/ColourButton.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <algorithm>

namespace quillon {

namespace {

constexpr int kMinSize = 1;
constexpr int kMaxSize = 200;
constexpr int kSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};
constexpr int kSampleHeight = 4; // usual lines

} // namespace

FontForm::FontForm(const FontChoice& current, Ask& ask, QWidget* parent)
    : Form("FontForm", "Teckensnitt", parent), Chosen(current), ask_(ask)
{
    MakeName();
    MakeSize();
    MakeLooks();
    auto* looks = new QVBoxLayout;
    for (QCheckBox* box : {cBold, cItalic, cUnderline, cStrikeThrough})
        looks->addWidget(box);
    looks->addWidget(cmdColor);
    cUnderline->setVisible(Chosen.isUnderlined.has_value());
    cStrikeThrough->setVisible(Chosen.isStruckOut.has_value());
    cmdColor->setVisible(Chosen.colour.has_value());
    Arrange(VBox({
        Fields({{"&Teckensnitt:", ComboFontName}, {"&Storlek (punkter):", ComboFontSize}}),
        Frame("Utseende", {looks}),
        Growing(Frame("Exempel", {Growing(sSample)})),
        OkCancel(),
    }));
    ShowSample();
}

void FontForm::MakeName()
{
    Named(NAMED(ComboFontName), new QFontComboBox);
    // The name of a font that this machine lacks is kept.
    ComboFontName->setEditable(true);
    ComboFontName->setEditText(ToQt(Chosen.name));
    // Of any length, since a family of the list would be cut into another name: OK refuses it.
    if (Chosen.maxNameLength > 0)
        LimitTyping(ComboFontName->lineEdit(), 0);
    connect(ComboFontName, &QComboBox::editTextChanged, this, [this] { ShowSample(); });
}

void FontForm::MakeSize()
{
    Named(NAMED(ComboFontSize), new QComboBox);
    ComboFontSize->setEditable(true);
    // A 1 that is typed is meant, and not the beginning of a 10.
    ComboFontSize->setCompleter(nullptr);
    ComboFontSize->setValidator(new QIntValidator(kMinSize, kMaxSize, ComboFontSize));
    for (const int size : kSizes)
        ComboFontSize->addItem(QString::number(size));
    ComboFontSize->setEditText(QString::number(Chosen.size));
    connect(ComboFontSize, &QComboBox::editTextChanged, this, [this] { ShowSample(); });
}

void FontForm::MakeLooks()
{
    const auto box = [this](QCheckBox*& member, const char* name, const char* caption, bool on) {
        Named(member, name, new QCheckBox(QString::fromUtf8(caption)))->setChecked(on);
        connect(member, &QCheckBox::toggled, this, [this] { ShowSample(); });
    };
    box(NAMED(cBold), "&Fet", Chosen.isBold);
    box(NAMED(cItalic), "&Kursiv", Chosen.isItalic);
    box(NAMED(cUnderline), "&Understruken", Chosen.isUnderlined.value_or(false));
    box(NAMED(cStrikeThrough), "&Genomstruken", Chosen.isStruckOut.value_or(false));
    Named(NAMED(cmdColor), new ColourButton("F&ärg...", ask_, [this] { ShowSample(); }));
    cmdColor->SetColour(Chosen.colour.value_or(0));
    Named(NAMED(sSample), new QLabel("AaBbÅåÄäÖö 123"), "Exempel");
    sSample->setAlignment(Qt::AlignCenter);
    sSample->setMinimumHeight(kSampleHeight * fontMetrics().lineSpacing());
    sSample->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
}

// A size of the project that can't be typed stays until another one is chosen.
Integer FontForm::ShownSize() const
{
    const QString size = ComboFontSize->currentText();
    if (size.isEmpty() || size == QString::number(Chosen.size))
        return Chosen.size;
    return static_cast<Integer>(std::clamp(size.toInt(), kMinSize, kMaxSize));
}

FontChoice FontForm::Shown() const
{
    FontChoice font = Chosen;
    font.name = FromQt(ComboFontName->currentText().trimmed());
    if (font.name.empty())
        font.name = Chosen.name;
    font.size = ShownSize();
    font.isBold = cBold->isChecked();
    font.isItalic = cItalic->isChecked();
    if (font.isUnderlined)
        font.isUnderlined = cUnderline->isChecked();
    if (font.isStruckOut)
        font.isStruckOut = cStrikeThrough->isChecked();
    if (font.colour)
        font.colour = cmdColor->GetColour();
    return font;
}

void FontForm::ShowSample()
{
    const FontChoice shown = Shown();
    QFont font(ToQt(shown.name), std::clamp<int>(shown.size, kMinSize, kMaxSize));
    font.setBold(shown.isBold);
    font.setItalic(shown.isItalic);
    font.setUnderline(shown.isUnderlined.value_or(false));
    font.setStrikeOut(shown.isStruckOut.value_or(false));
    sSample->setFont(font);
}

// The list holds the machine's own families, whatever their names are.
bool FontForm::MayClose()
{
    if (Chosen.maxNameLength == 0)
        return true;
    const Text name = Shown().name;
    if (AnsiText::Holds(name))
        return !WarnIfTooLong(ComboFontName->lineEdit(), Chosen.maxNameLength);
    ask_.Critical("Ogiltiga tecken hittade",
                  "Teckensnittet '" + name +
                      "' kan ej väljas. Namnet innehåller tecken som inte kan lagras i ett "
                      "projekt. Välj ett annat teckensnitt.");
    ComboFontName->setFocus();
    return false;
}

void FontForm::Store()
{
    Chosen = Shown();
}

} // namespace quillon
