#include "design/forms/DlgDesTitle.h"

#include "design/font_description.h"
#include "design/forms/DlgDesSubTitle.h"
#include "design/forms/font_records.h"
#include "design/number_fields.h"
#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/controls/UpDownArrows.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kFieldCharacters = 45;

} // namespace

DlgDesTitle::DlgDesTitle(Session& session, QWidget* parent)
    : DesignEditor("DlgDesTitle", "Titel", session, parent), title_(session.project.DesTitle),
      subTitle_(session.project.DesSubTitle.SubTitleText)
{
    Field(NAMED(tTitleText), title_.TitleText, MaxTextLength(&section::DesTitle::TitleText));
    Check(NAMED(cTitleShadow), "&Skugga", title_.TitleShadow);
    ColourOf(NAMED(cmdTitleColor), "&Färg...", title_.TitleForeColor);
    Button(NAMED(cmdTitleFont), "&Teckensnitt...", [this] { ChooseFont(); });
    Named(NAMED(sTitleFont), new QLabel, "Titelns teckensnitt");
    Button(NAMED(CmdSubTitle), "&Undertitel...",
           [this] { DlgDesSubTitle(subTitle_, session_, this).ShowModal(); });
    MakeSpacing();
    Bind([this] { session_.project.DesSubTitle.SubTitleText = subTitle_; });
    ShowFont();
    Arrange(VBox({
        Above("T&itel:", MinWidth(kFieldCharacters, tTitleText)),
        HBox({
            Frame("Justering",
                  {Options(title_.TitleAlignment,
                           {{NAMED(oTitleLeft), "&Vänster", Integer(DesignAlignment::Begin)},
                            {NAMED(oTitleCenter), "&Centrerad", Integer(DesignAlignment::Centre)},
                            {NAMED(oTitleRight), "&Höger", Integer(DesignAlignment::End)}})}),
            VBox({
                cTitleShadow,
                Fields({{"Tecken&avstånd:", HBox({tTitleCharInterSpace, UpDownArr, Stretch()})}}),
                HBox({cmdTitleColor, CmdSubTitle, Stretch()}),
            }),
        }),
        Frame("Teckensnitt", {sTitleFont, HBox({cmdTitleFont, Stretch()})}),
        Stretch(),
        OkCancel(),
    }));
    tTitleText->setFocus();
}

void DlgDesTitle::MakeSpacing()
{
    const Text& spacing = title_.TitleCharInterSpace;
    CheckedField(NAMED(tTitleCharInterSpace), spacing.empty() ? "0" : spacing,
                 CheckedCharInterSpace);
    Named(NAMED(UpDownArr), new UpDownArrows(tTitleCharInterSpace));
    UpDownArr->SetRange(-10, 100);
    Bind([this] {
        title_.TitleCharInterSpace =
            NumberText(LeadingNumber(FromQt(tTitleCharInterSpace->text())));
    });
}

// Kept: a font is stored at once, so that Cancel does not take it back.
void DlgDesTitle::ChooseFont()
{
    if (const auto chosen = session_.ask.ChooseFont(TitleFontOf(title_))) {
        SetTitleFont(title_, *chosen);
        session_.state.ProjectIsDirty = kOn;
        ShowFont();
    }
}

void DlgDesTitle::ShowFont()
{
    sTitleFont->setText(ToQt(FontDescription(title_.TitleFontName, title_.TitleFontSize,
                                             title_.TitleFontBold, title_.TitleFontItalic)));
}

} // namespace quillon
