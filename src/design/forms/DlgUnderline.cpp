#include "design/forms/DlgUnderline.h"

#include "design/number_fields.h"
#include "shell/help.h"
#include "shell/session.h"
#include "ui/controls/UpDownArrows.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr int kMaxHeight = 50;

} // namespace

DlgUnderline::DlgUnderline(Session& session, QWidget* parent)
    : DesignEditor("DlgUnderline", "Understrykning av titel", session, parent),
      underline_(session.project.DesTitleUnderline)
{
    Piece kinds =
        Options(underline_.UnderlineType, {{NAMED(oNoUnderline), "&Ingen understrykning", 0},
                                           {NAMED(oSimpleUnderline), "&Enkel understrykning", 1},
                                           {NAMED(oMistyUnderline), "&Dimmig understrykning", 2},
                                           {NAMED(oBlendUnderline), "&Tonad understrykning", 3}});
    ColourOf(NAMED(CmdColor1), "Färg &1...", underline_.UnderlineColor1);
    ColourOf(NAMED(CmdColor2), "Färg &2...", underline_.UnderlineColor2);
    Check01(NAMED(cUnderlineTextOnly), "Stryk endast under te&xten", underline_.UnderlineTextOnly);
    Button(NAMED(CmdHelp), "&Hjälp", [this] { ShowHelp(session_, {CommandId::Underline}); });
    MakeHeight();
    for (QRadioButton* kind : {oNoUnderline, oSimpleUnderline, oMistyUnderline, oBlendUnderline})
        connect(kind, &QRadioButton::toggled, this, [this](bool isChosen) {
            if (isChosen)
                ChooseKind();
        });
    EnableColours();
    Arrange(VBox({
        HBox({
            Frame("Typ", {kinds}),
            Frame("Färg", {CmdColor1, CmdColor2, Stretch()}),
        }),
        Fields({{"H&öjd (bildpunkter):", HBox({tUnderlineHeight, UpDownArr, Stretch()})}}),
        cUnderlineTextOnly,
        Stretch(),
        HBox({CmdHelp, Growing(OkCancel())}),
    }));
    // The name that scripts know this form's button by.
    cmdOK->setObjectName("OKButton");
}

int DlgUnderline::GetUnderlineTypeNr() const
{
    const std::array kinds = {oNoUnderline, oSimpleUnderline, oMistyUnderline, oBlendUnderline};
    const auto chosen = std::ranges::find_if(kinds, &QRadioButton::isChecked);
    return chosen == kinds.end() ? 0 : static_cast<int>(chosen - kinds.begin());
}

void DlgUnderline::SetUnderlineTypeNr(int n)
{
    const std::array kinds = {oNoUnderline, oSimpleUnderline, oMistyUnderline, oBlendUnderline};
    kinds[n >= 0 && n < static_cast<int>(kinds.size()) ? static_cast<std::size_t>(n) : 0]
        ->setChecked(true);
}

void DlgUnderline::MakeHeight()
{
    CheckedField(NAMED(tUnderlineHeight),
                 NumberText(UnderlineHeightToEdit(underline_.UnderlineHeight)),
                 [this](const Text& entry) {
                     return CheckedUnderlineHeight(entry, UnderlineKind(GetUnderlineTypeNr()));
                 });
    Bind([this] {
        Text height = FromQt(tUnderlineHeight->text());
        if (height.empty())
            height = CheckedUnderlineHeight(height, UnderlineKind(GetUnderlineTypeNr()));
        underline_.UnderlineHeight = static_cast<Integer>(LeadingNumber(height));
    });
    Named(NAMED(UpDownArr), new UpDownArrows(tUnderlineHeight));
    const auto kind = ChoiceOf(UnderlineKind(GetUnderlineTypeNr()));
    UpDownArr->SetRange(kind.minHeight.value_or(3), kMaxHeight);
}

void DlgUnderline::EnableColours()
{
    const UnderlineChoice choice = ChoiceOf(UnderlineKind(GetUnderlineTypeNr()));
    CmdColor1->setEnabled(choice.takesColor1);
    CmdColor2->setEnabled(choice.takesColor2);
}

// The one that is chosen already keeps the height that was typed for it.
void DlgUnderline::ChooseKind()
{
    const UnderlineChoice choice = ChoiceOf(UnderlineKind(GetUnderlineTypeNr()));
    EnableColours();
    if (choice.minHeight)
        UpDownArr->SetRange(*choice.minHeight, kMaxHeight);
    if (choice.height)
        tUnderlineHeight->setText(QString::number(*choice.height));
}

} // namespace quillon
