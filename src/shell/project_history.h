// What has been done to the open project, step by step, to be undone and done again.
//
// Commands do not report to the history what they did: the caller of a command compares the project
// before and after, by `Record`. So every command can be undone. A state of the project is its
// settings as packed bytes and its rows as numbers of a pool that holds each distinct row once; a
// state shares with the one before it what did not change. With 32,767 rows a state whose rows
// changed takes 128 KB and the rows that are new. Steps that exceed the memory set aside for all
// are forgotten, the oldest first; the last one always stays.
//
// Each state knows whether the project counted as changed in it. Saving makes the one that is saved
// the only unchanged one, so going back to it, from either side, shows the project as unchanged.
#pragma once

#include "project/records.h"
#include "shell/row_pool.h"

#include <deque>
#include <memory>

namespace quillon {

inline constexpr std::size_t kHistoryBytes = 40U << 20;

class ProjectHistory {
public:
    ProjectHistory(Project& project, OpenProjectState& state, std::size_t maxBytes = kHistoryBytes);

    /// Another project is open: what was done to the one before can't be undone any more.
    void Begin();

    // What may have changed. Comparing the rows of a long list takes a few milliseconds.
    enum class Changed { Settings, SettingsAndRows };

    /// What has changed since the last call becomes a step of this name; false where nothing has.
    bool Record(const Text& name, Changed changed);
    /// The same without a step of its own: undoing what was done before takes it back as well.
    void MergeIntoLastStep(Changed changed);

    // The steps that can be undone and done again; null where there is none.
    const Text* UndoName() const;
    const Text* RedoName() const;

    struct Restored {
        bool rowsChanged = false;
        // The rows that are there now and were not before, sorted by row number, ascending.
        std::vector<std::size_t> newRows;
    };
    /// Takes the last step back, in the project and in its change flag. There must be one.
    Restored Undo();
    Restored Redo();

    /// Goes up with every change of the project, undone ones too.
    std::uint64_t Revision() const { return revision_; }

    /// About what the history takes in memory.
    std::size_t Bytes() const;

private:
    using RowNumbers = std::vector<RowNumber>;

    struct State {
        Text name; // of the step that led here
        std::shared_ptr<const Text> settings;
        std::shared_ptr<const RowNumbers> rows;
        Column sortKey;
        bool sortDescending;
        bool sorted;
        Flag isDirty;
    };

    State Look(Changed changed);
    std::shared_ptr<const RowNumbers> LookAtRows();
    bool IsCurrent(const State& state) const;
    void NoteSaving();
    void ForgetUndone();
    void FitIntoMemory();
    void DropUnusedRows();
    Restored GoTo(std::size_t number);
    std::vector<std::size_t> RowsNotIn(const RowNumbers& before, const RowNumbers& now) const;

    Project& project_;
    OpenProjectState& state_;
    std::size_t maxBytes_;
    RowPool pool_;
    std::deque<State> states_; // in the order in which they came about
    std::size_t current_ = 0;
    std::uint64_t revision_ = 0;
};

} // namespace quillon
