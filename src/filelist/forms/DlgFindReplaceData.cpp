#include "filelist/forms/DlgFindReplaceData.h"

#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kUsualFolderLength = 50;

} // namespace

DlgFindReplaceData::DlgFindReplaceData(ReplaceIn where, const Text& findThis, Session& session,
                                       QWidget* parent)
    : EditorForm("DlgFindReplaceData", UseOf(where).caption, session, parent), where_(where)
{
    Data.find = findThis;
    Named(NAMED(cPartOfText), new QCheckBox("Sök även i &del av texten"));
    Bind([this] { Data.partOfText = cPartOfText->isChecked(); });
    Arrange(VBox({
        Fields({
            {"&Sök efter:", MinWidth(kUsualFolderLength, Field(NAMED(tFindThis), Data.find))},
            {"&Ersätt med:", Field(NAMED(tReplaceWith), Data.with)},
        }),
        cPartOfText,
        Stretch(),
        OkCancel(),
    }));
    cPartOfText->setVisible(UseOf(where).offersPart);
    if (where == ReplaceIn::Options)
        connect(tReplaceWith, &QLineEdit::textEdited, this, [this] { KeepOptionLetters(); });
    tReplaceWith->setFocus();
}

void DlgFindReplaceData::KeepOptionLetters()
{
    const int caret = tReplaceWith->cursorPosition();
    tReplaceWith->setText(ToQt(AsOptionLetters(FromQt(tReplaceWith->text()))));
    tReplaceWith->setCursorPosition(caret);
}

bool DlgFindReplaceData::MayClose()
{
    const bool may = MayReplaceWith(FromQt(tReplaceWith->text()), where_, session_.ask);
    if (!may)
        tReplaceWith->setFocus();
    return may;
}

} // namespace quillon
