#include "filelist/forms/DlgSortList.h"

#include "filelist/view/sort_choice.h"
#include "project/components.h"

#include <QtWidgets>

namespace quillon {

DlgSortList::DlgSortList(const Project& project, QWidget* parent)
    : Form("DlgSortList", "Sortera fillista", parent), options_(kSortChoices.size())
{
    for (std::size_t i = 0; i < options_.size(); ++i)
        MakeOption(i, project);
    Arrange(VBox({
        Frame("Sortera efter",
              {options_[0], options_[1], options_[2], options_[3], options_[4], options_[5]}),
        Stretch(),
        OkCancel(),
    }));
    options_.front()->setChecked(true);
    options_.front()->setFocus();
}

QRadioButton* DlgSortList::MakeOption(std::size_t number, const Project& project)
{
    const SortChoice& choice = kSortChoices[number];
    QRadioButton* option = Named(options_[number], choice.control,
                                 new QRadioButton(QString::fromUtf8(choice.caption)));
    option->setEnabled(choice.key != ComponentNumber || IsAnyComponentInUse(project));
    return option;
}

void DlgSortList::Store()
{
    for (std::size_t i = 0; i < options_.size(); ++i)
        if (options_[i]->isChecked())
            Key = kSortChoices[i].key;
}

} // namespace quillon
