#include "filelist/forms/DlgCopyOptions.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgCopyOptions::DlgCopyOptions(const CopyOptionTicks& ticks, QWidget* parent)
    : Form("DlgCopyOptions", "Kopieringsinställningar", parent)
{
    for (std::size_t box = 0; box < boxes_.size(); ++box)
        MakeBox(box, ticks[box]);
    AtMostOne({BoxOf(CopyLetter::kDateCheck), BoxOf(CopyLetter::kVersionCheck),
               BoxOf(CopyLetter::kNeverReplace)});
    Arrange(VBox({
        HBox({
            Growing(VBox({
                Frame("Före kopiering",
                      {BoxOf(CopyLetter::kDateCheck), BoxOf(CopyLetter::kVersionCheck),
                       BoxOf(CopyLetter::kNeverReplace)}),
                Frame("Efter kopiering",
                      {BoxOf(CopyLetter::kRegister), BoxOf(CopyLetter::kSetWriteProtection)}),
                Frame("Avinstallation", {BoxOf(CopyLetter::kNeverUninstall)}),
                Stretch(),
            })),
            Growing(VBox({
                Frame("Special",
                      {BoxOf(CopyLetter::kNotIfEqualVersion), BoxOf(CopyLetter::kWarnIfExists),
                       BoxOf(CopyLetter::kActiveFile), BoxOf(CopyLetter::kShared),
                       BoxOf(CopyLetter::kWriteProtected), BoxOf(CopyLetter::kBackup)}),
                Stretch(),
            })),
        }),
        Stretch(),
        OkCancel(),
    }));
}

QCheckBox* DlgCopyOptions::MakeBox(std::size_t number, bool isTicked)
{
    const CopyOption& option = kCopyOptions[number];
    QCheckBox* box =
        Named(boxes_[number], Text(option.control).c_str(), new QCheckBox(ToQt(option.caption)));
    box->setChecked(isTicked);
    return box;
}

QCheckBox* DlgCopyOptions::BoxOf(char letter) const
{
    const auto* const option = std::ranges::find(kCopyOptions, letter, &CopyOption::letter);
    return boxes_[static_cast<std::size_t>(option - kCopyOptions.begin())];
}

void DlgCopyOptions::Store()
{
    CopyOptionTicks ticks{};
    for (std::size_t box = 0; box < boxes_.size(); ++box)
        ticks[box] = boxes_[box]->isChecked();
    Letters = CopyOptionLetters(ticks);
}

} // namespace quillon
