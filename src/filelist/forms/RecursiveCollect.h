// The collection of files from a folder tree: how the tree maps to destinations, the walk, and its
// count.
#pragma once

#include "filelist/adding/tree_walk.h"
#include "filelist/list_work.h"
#include "ui/kit/Form.h"

class QLabel;

namespace quillon {

class RecursiveCollect : public Form {
public:
    RecursiveCollect(const ListWork& work, const TreeToAdd& tree, QWidget* parent);

    /// The new places of the rows from before.
    const NewPlaces& Places() const { return places_; }

    QLabel* sStartDirect = nullptr;
    QRadioButton* oReplaceLevel1InTree = nullptr;
    QRadioButton* oConcatTree = nullptr;
    QLabel* sSearchStatus = nullptr;
    QLabel* lblSummary = nullptr;
    QLabel* sNumberFiles = nullptr;
    QPushButton* cmdStart = nullptr;
    QPushButton* cmdClose = nullptr;

private:
    void Start();
    /// False where the walk failed.
    bool Collect(FileAdding& adding);
    Text Summary(std::int64_t milliseconds, const std::optional<Long>& sizeBefore) const;
    void CountFile();
    void ProcessEvents();

    const ListWork work_;
    TreeToAdd tree_;
    NewPlaces places_;
    int seen_ = 0;
};

} // namespace quillon
