#include "design/forms/DlgDesTextbox.h"

#include "design/number_fields.h"
#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::DesTextBox;

constexpr int kFieldCharacters = 40;

} // namespace

DlgDesTextbox::DlgDesTextbox(Session& session, QWidget* parent)
    : DesignEditor("DlgDesTextbox", "Textruta", session, parent), box_(session.project.DesTextBox)
{
    Check(NAMED(cShowTextBox), "&Visa textrutan", box_.ShowTextBox);
    Check(NAMED(cCenterBox), "&Centrera textrutan vågrätt", box_.BoxCenter);
    Check(NAMED(cPlaceBelowTitle), "&Placera textrutan direkt under titeln",
          box_.BoxPlaceBelowTitle);
    Arrange(VBox({
        cShowTextBox,
        Growing(TextFrame()),
        LooksFrame(),
        cCenterBox,
        cPlaceBelowTitle,
        OkCancel(),
    }));
    tTitleText->setFocus();
}

Piece DlgDesTextbox::TextFrame()
{
    Field(NAMED(tTitleText), box_.BoxTitle, MaxTextLength(&DesTextBox::BoxTitle));
    Area(NAMED(tBoxText), box_.BoxText, MaxTextLength(&DesTextBox::BoxText));
    Named(NAMED(sBoxTitleFont), new QLabel(ToQt(DescriptionOf(box_, kBoxTitleFont))),
          "Rubrikens teckensnitt");
    Named(NAMED(sBoxTextFont), new QLabel(ToQt(DescriptionOf(box_, kBoxTextFont))),
          "Textens teckensnitt");
    Button(NAMED(cmdTitleFont), "T&eckensnitt för rubrik...",
           [this] { ChooseBoxFont(kBoxTitleFont, sBoxTitleFont); });
    Button(NAMED(cmdTextBoxFont), "Teckensnitt för te&xt...",
           [this] { ChooseBoxFont(kBoxTextFont, sBoxTextFont); });
    return VBox({
        Above("&Rubrik:", MinWidth(kFieldCharacters, tTitleText)),
        HBox({cmdTitleFont, sBoxTitleFont, Stretch()}),
        Growing(Above("&Text:", tBoxText)),
        HBox({cmdTextBoxFont, sBoxTextFont, Stretch()}),
    });
}

Piece DlgDesTextbox::LooksFrame()
{
    Check(NAMED(cUseBackground), "Använd &bakgrundsfärg", box_.BoxUseBackColor);
    ColourOf(NAMED(cmdSetBackColor), "Bakgrunds&färg...", box_.BoxBackColor);
    const auto size = [](Long surface) {
        return [surface](const Text& entry) { return CheckedTextBoxSize(entry, surface); };
    };
    NumberField(NAMED(tWidth), box_.BoxWidth, size(session_.surface.width));
    NumberField(NAMED(tHeight), box_.BoxHeight, size(session_.surface.height));
    return HBox({
        Frame("Storlek (bildpunkter)", {Fields({{"Bre&dd:", tWidth}, {"&Höjd:", tHeight}})}),
        Frame("Bakgrund", {cUseBackground, HBox({cmdSetBackColor, Stretch()})}),
        Stretch(),
    });
}

// Kept: a font is stored at once, so that Cancel does not take it back.
void DlgDesTextbox::ChooseBoxFont(const BoxFont& fields, QLabel* label)
{
    if (const auto chosen = session_.ask.ChooseFont(FontOf(box_, fields))) {
        SetFont(box_, fields, *chosen);
        session_.state.ProjectIsDirty = kOn;
        label->setText(ToQt(DescriptionOf(box_, fields)));
        // A longer name widens the window at once.
        layout()->activate();
    }
}

} // namespace quillon
