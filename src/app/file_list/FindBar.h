// The bar below the file list that looks for rows while one types.
#pragma once

#include "filelist/find_rows.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace quillon {

class FileListView;

class FindBar : public QWidget {
public:
    FindBar(const FileList& files, FileListView& list);

    /// Shows the bar with what was looked for last, ready to be typed over.
    void Open();

private:
    void MakeKeys();
    QPushButton* Button(QPushButton*& member, const char* name, const Text& caption,
                        void (FindBar::*press)());
    void FindTyped() { Find(FindStep::Here); }
    void FindNext() { Find(FindStep::Next); }
    void FindPrevious() { Find(FindStep::Previous); }
    void Find(FindStep step);
    void Close();

    const FileList& files_;
    FileListView& list_;
    QLineEdit* tFind = nullptr;
    QPushButton* cmdFindNext = nullptr;
    QPushButton* cmdFindPrevious = nullptr;
    QPushButton* cmdFindClose = nullptr;
    QLabel* sFound = nullptr;
};

} // namespace quillon
