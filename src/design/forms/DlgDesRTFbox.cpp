#include "design/forms/DlgDesRTFbox.h"

#include "design/number_fields.h"
#include "helpers/windows_path.h"
#include "platform/failure_text.h"
#include "platform/whole_file.h"
#include "project/text_limits.h"
#include "rtf/rtf_losses.h"
#include "rtf/rtf_writer.h"
#include "shell/session.h"
#include "ui/controls/rtf_document.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_colour.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kLineCharacters = 60;
constexpr int kLinesOfTheBox = 10;
constexpr double kUsualPoints = 12;

QPushButton* Toggle(QPushButton* button)
{
    button->setCheckable(true);
    // The selection keeps the keyboard.
    button->setFocusPolicy(Qt::TabFocus);
    // Dark styles hardly show that a button is pressed.
    QObject::connect(button, &QPushButton::toggled, button, [button](bool isOn) {
        QPalette palette;
        if (isOn) {
            const QPalette all = QApplication::palette();
            palette.setColor(QPalette::Button, all.color(QPalette::Highlight));
            palette.setColor(QPalette::ButtonText, all.color(QPalette::HighlightedText));
        }
        button->setPalette(palette);
    });
    return button;
}

/// Takes of what is pasted or dropped only what the file can hold, so that nothing shows that a
/// save would lose: no pictures, and tables as text.
class RtfEdit : public QTextEdit {
protected:
    bool canInsertFromMimeData(const QMimeData* source) const override
    {
        return source->hasText() || source->hasHtml();
    }

    void insertFromMimeData(const QMimeData* source) override
    {
        if (!source->hasHtml())
            return QTextEdit::insertFromMimeData(source);
        QTextDocument pasted;
        pasted.setHtml(source->html());
        QTextDocument held;
        InsertRtf(ExtractRtf(pasted, logicalDpiX()), held, logicalDpiX());
        textCursor().insertFragment(QTextDocumentFragment(&held));
        ensureCursorVisible();
    }
};

} // namespace

DlgDesRTFbox::DlgDesRTFbox(Session& session, QWidget* parent)
    : DesignEditor("DlgDesRTFbox", "RTF-ruta", session, parent), box_(session.project.DesRTFbox)
{
    const Text& stored = box_.RTFfilename;
    Named(NAMED(tRTFfilename),
          new QLineEdit(
              ToQt(stored.empty() ? ProposedRTFfilename(session.state.ProjectFileName) : stored)));
    // With room for the ending that a name without one gets.
    constexpr int kEnding = 4;
    LimitTyping(tRTFfilename, MaxTextLength(&section::DesRTFbox::RTFfilename) - kEnding);
    Check(NAMED(cShowRTFbox), "&Visa RTF-rutan", box_.ShowRTFbox);
    Named(NAMED(cmdSetBackColor),
          new ColourButton("&Bakgrundsfärg...", session.ask, [this] { ShowBackColour(); }));
    MakeEditor();
    cmdSetBackColor->SetColour(box_.RTFboxBackColor);
    ShowBackColour();
    Bind([this] { box_.RTFboxBackColor = cmdSetBackColor->GetColour(); });
    Arrange(VBox({
        HBox({cShowRTFbox, Stretch()}),
        FormatButtons(),
        Growing(RTFbox),
        HBox({
            SizeFrame(),
            Frame("Fil", {Fields({{"&Filnamn:", tRTFfilename}}), Stretch()}),
        }),
        OkCancel(),
    }));
    if (!stored.empty())
        Load();
    ShowFormat();
    RTFbox->setFocus();
}

void DlgDesRTFbox::MakeEditor()
{
    Named(NAMED(RTFbox), static_cast<QTextEdit*>(new RtfEdit), "Rutans text");
    RTFbox->setTabChangesFocus(false);
    RTFbox->setAcceptRichText(true);
    RTFbox->setFontPointSize(kUsualPoints);
    RTFbox->setMinimumSize(kLineCharacters * fontMetrics().averageCharWidth(),
                           kLinesOfTheBox * fontMetrics().lineSpacing());
    connect(RTFbox, &QTextEdit::currentCharFormatChanged, this, [this] { ShowFormat(); });
}

Piece DlgDesRTFbox::FormatButtons()
{
    Button(NAMED(cmdBold), "F&et", [this] {
        QTextCharFormat format;
        format.setFontWeight(cmdBold->isChecked() ? QFont::Bold : QFont::Normal);
        Format(format);
    });
    Button(NAMED(cmdItalic), "&Kursiv", [this] {
        QTextCharFormat format;
        format.setFontItalic(cmdItalic->isChecked());
        Format(format);
    });
    Button(NAMED(cmdUnderline), "&Understruken", [this] {
        QTextCharFormat format;
        format.setFontUnderline(cmdUnderline->isChecked());
        Format(format);
    });
    Button(NAMED(cmdRTFfont), "&Teckensnitt...", [this] { ChooseRTFfont(); });
    Button(NAMED(cmdUndo), "&Ångra", [this] { RTFbox->undo(); });
    Button(NAMED(cmdRedo), "&Gör om", [this] { RTFbox->redo(); });
    for (const auto& [button, key] : {std::pair{cmdBold, QKeySequence::Bold},
                                      {cmdItalic, QKeySequence::Italic},
                                      {cmdUnderline, QKeySequence::Underline}})
        Toggle(button)->setShortcut(QKeySequence(key));
    cmdUndo->setEnabled(false);
    cmdRedo->setEnabled(false);
    connect(RTFbox, &QTextEdit::undoAvailable, cmdUndo, &QWidget::setEnabled);
    connect(RTFbox, &QTextEdit::redoAvailable, cmdRedo, &QWidget::setEnabled);
    return HBox({cmdBold, cmdItalic, cmdUnderline, cmdRTFfont, cmdUndo, cmdRedo, Stretch()});
}

Piece DlgDesRTFbox::SizeFrame()
{
    const DesignSurface& surface = session_.surface;
    NumberField(NAMED(tWidth), box_.RTFboxWidth, [width = surface.width](const Text& entry) {
        return CheckedRTFboxWidth(entry, width);
    });
    NumberField(NAMED(tHeight), box_.RTFboxHeight, [height = surface.height](const Text& entry) {
        return CheckedRTFboxHeight(entry, height);
    });
    return Frame("Storlek (bildpunkter)", {Fields({{"Bre&dd:", tWidth}, {"&Höjd:", tHeight}}),
                                           HBox({cmdSetBackColor, Stretch()})});
}

void DlgDesRTFbox::Format(const QTextCharFormat& format)
{
    RTFbox->mergeCurrentCharFormat(format);
    RTFbox->setFocus();
}

void DlgDesRTFbox::ShowFormat()
{
    const QFont font = RTFbox->currentFont();
    cmdBold->setChecked(font.bold());
    cmdItalic->setChecked(font.italic());
    cmdUnderline->setChecked(font.underline());
}

void DlgDesRTFbox::ShowBackColour()
{
    const QColor shown = ToQtColour(cmdSetBackColor->GetColour());
    QPalette palette = RTFbox->palette();
    palette.setColor(QPalette::Base, shown);
    // Text without a colour of its own is black in the setup, on whatever the box is filled with.
    palette.setColor(QPalette::Text, Qt::black);
    // The letters take the colours of the editor, the background those of its viewport.
    RTFbox->setPalette(palette);
    RTFbox->viewport()->setPalette(palette);
}

void DlgDesRTFbox::ChooseRTFfont()
{
    const QTextCharFormat now = RTFbox->currentCharFormat();
    const QFont font = RTFbox->currentFont();
    // The dialog has whole points only; a text with half a point keeps it unless another size is
    // chosen.
    const auto points =
        static_cast<Integer>(font.pointSizeF() > 0 ? font.pointSizeF() : kUsualPoints);
    const QColor colour =
        now.hasProperty(QTextFormat::ForegroundBrush) ? now.foreground().color() : Qt::black;
    const auto chosen = session_.ask.ChooseFont({.name = FromQt(font.family()),
                                                 .size = points,
                                                 .isBold = font.bold(),
                                                 .isItalic = font.italic(),
                                                 .isUnderlined = font.underline(),
                                                 .isStruckOut = font.strikeOut(),
                                                 .colour = FromQtColour(colour)});
    if (chosen) {
        QTextCharFormat format;
        format.setFontFamilies({ToQt(chosen->name)});
        if (chosen->size != points)
            format.setFontPointSize(chosen->size);
        format.setFontWeight(chosen->isBold ? QFont::Bold : QFont::Normal);
        format.setFontItalic(chosen->isItalic);
        format.setFontUnderline(chosen->isUnderlined.value_or(false));
        format.setFontStrikeOut(chosen->isStruckOut.value_or(false));
        format.setForeground(ToQtColour(chosen->colour.value_or(0)));
        RTFbox->mergeCurrentCharFormat(format);
        ShowFormat();
    }
    RTFbox->setFocus();
}

RTFboxFolders DlgDesRTFbox::Folders() const
{
    return {session_.options.ToolFolder, session_.options.OwnFolder};
}

void DlgDesRTFbox::Load()
{
    const Text path = PathIn(session_.host.files, Folders(), box_.RTFfilename);
    try {
        const std::string bytes = ReadWholeFile(session_.host.files, path);
        const auto text = ReadRtf(bytes);
        if (!text) {
            session_.ask.Critical("Fel", "Filen '" + path + "' är ingen RTF-fil.");
            return;
        }
        InsertRtf(*text, *RTFbox->document(), RTFbox->logicalDpiX());
        RTFbox->document()->clearUndoRedoStacks();
        const std::vector<Text> losses = RtfLosses(bytes);
        const bool isCut = text->fault != RtfText::Fault::None;
        ReportRtfLosses(losses, isCut, path, session_.ask);
        if (losses.empty() && !isCut)
            shownFile_ = path;
    } catch (const RunError& error) {
        session_.ask.Critical("Fel", FailureText(error, path));
    }
}

bool DlgDesRTFbox::MayClose()
{
    return CheckRTFfilename(FromQt(tRTFfilename->text()), session_.ask) && SaveText();
}

// Before the record is stored: where the text can't be saved, the editor stays open with it.
bool DlgDesRTFbox::SaveText()
{
    const Text name = StoredRTFfilename(FromQt(tRTFfilename->text()));
    const Text path = JoinPath(Folders().own, name);
    try {
        const RtfText text = ExtractRtf(*RTFbox->document(), RTFbox->logicalDpiX());
        SaveRTFbox(session_.host.files, path, WriteRtf(text),
                   EqualIgnoreCase(path, shownFile_) ? OldRtfFile::Replaced : OldRtfFile::Kept);
        shownFile_ = path;
        return true;
    } catch (const RunError& error) {
        session_.ask.Critical("Fel", FailureText(error, path));
        return false;
    }
}

void DlgDesRTFbox::Store()
{
    box_.RTFfilename = StoredRTFfilename(FromQt(tRTFfilename->text()));
    DesignEditor::Store();
}

} // namespace quillon
