#include "filelist/forms/DlgCopyOptions.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgCopyOptions::DlgCopyOptions(const CopyOptionTicks& ticks, QWidget* parent)
    : Form("DlgCopyOptions", "Kopieringsinställningar", parent)
{
    for (std::size_t box = 0; box < boxes_.size(); ++box)
        MakeBox(box, ticks[box]);
    AtMostOne({BoxOf('D'), BoxOf('V'), BoxOf('N')});
    Arrange(VBox({
        HBox({
            Growing(VBox({
                Frame("Före kopiering", {BoxOf('D'), BoxOf('V'), BoxOf('N')}),
                Frame("Efter kopiering", {BoxOf('R'), BoxOf('P')}),
                Frame("Avinstallation", {BoxOf('*')}),
                Stretch(),
            })),
            Growing(VBox({
                Frame("Special",
                      {BoxOf('E'), BoxOf('X'), BoxOf('A'), BoxOf('S'), BoxOf('W'), BoxOf('B')}),
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
