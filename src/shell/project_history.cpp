#include "shell/project_history.h"

#include "project/packed_settings.h"

#include <algorithm>

namespace quillon {

ProjectHistory::ProjectHistory(Project& project, OpenProjectState& state, std::size_t maxBytes)
    : project_(project), state_(state), maxBytes_(maxBytes)
{
    Begin();
}

void ProjectHistory::Begin()
{
    states_.clear();
    current_ = 0;
    pool_ = {};
    states_.push_back(Look(Changed::SettingsAndRows));
    ++revision_;
}

bool ProjectHistory::Record(const Text& name, Changed changed)
{
    NoteSaving();
    State now = Look(changed);
    if (IsCurrent(now)) {
        states_[current_].isDirty = state_.ProjectIsDirty;
        return false;
    }
    now.name = name;
    ForgetUndone();
    states_.push_back(std::move(now));
    ++current_;
    ++revision_;
    FitIntoMemory();
    return true;
}

void ProjectHistory::MergeIntoLastStep(Changed changed)
{
    NoteSaving();
    State now = Look(changed);
    if (!IsCurrent(now))
        ++revision_;
    now.name = std::move(states_[current_].name);
    states_[current_] = std::move(now);
}

// Code that clears the flag has saved the project in its present state.
void ProjectHistory::NoteSaving()
{
    if (state_.ProjectIsDirty != kOff || states_[current_].isDirty == kOff)
        return;
    for (State& state : states_)
        state.isDirty = kOn;
}

ProjectHistory::State ProjectHistory::Look(Changed changed)
{
    const FileList& files = project_.Files;
    State now{.name = {},
              .settings = std::make_shared<Text>(PackSettings(project_)),
              .rows = changed == Changed::Settings ? states_[current_].rows : LookAtRows(),
              .sortKey = files.sortKey,
              .sortDescending = files.sortDescending,
              .sorted = files.sorted,
              .isDirty = state_.ProjectIsDirty};
    if (!states_.empty() && *now.settings == *states_[current_].settings)
        now.settings = states_[current_].settings;
    return now;
}

std::shared_ptr<const ProjectHistory::RowNumbers> ProjectHistory::LookAtRows()
{
    static const RowNumbers kNone;
    const RowNumbers& before = states_.empty() ? kNone : *states_[current_].rows;
    RowNumbers numbers;
    numbers.reserve(project_.Files.rows.size());
    Text packed;
    // Most rows keep their place, or move by a few; only the others are looked up.
    auto expected = before.begin();
    for (const FileListRow& row : project_.Files.rows) {
        PackRow(row, packed);
        const auto next =
            std::find_if(expected, expected + std::min<std::ptrdiff_t>(2, before.end() - expected),
                         [&](RowNumber number) { return pool_.At(number) == packed; });
        if (next != before.end() && next - expected < 2) {
            numbers.push_back(*next);
            expected = next + 1;
        } else {
            numbers.push_back(pool_.NumberOf(packed));
        }
    }
    if (!states_.empty() && numbers == before)
        return states_[current_].rows;
    return std::make_shared<RowNumbers>(std::move(numbers));
}

bool ProjectHistory::IsCurrent(const State& state) const
{
    const State& now = states_[current_];
    return state.settings == now.settings && state.rows == now.rows &&
           state.sortKey == now.sortKey && state.sortDescending == now.sortDescending &&
           state.sorted == now.sorted;
}

void ProjectHistory::ForgetUndone()
{
    states_.erase(states_.begin() + static_cast<std::ptrdiff_t>(current_) + 1, states_.end());
}

std::size_t ProjectHistory::Bytes() const
{
    std::size_t bytes = pool_.Bytes();
    for (std::size_t i = 0; i < states_.size(); ++i) {
        const State& state = states_[i];
        bytes += sizeof state;
        if (i == 0 || state.settings != states_[i - 1].settings)
            bytes += state.settings->capacity();
        if (i == 0 || state.rows != states_[i - 1].rows)
            bytes += state.rows->capacity() * sizeof(RowNumber);
    }
    return bytes;
}

void ProjectHistory::FitIntoMemory()
{
    if (Bytes() <= maxBytes_)
        return;
    // Dropping the rows of steps that can no longer be redone may be enough.
    DropUnusedRows();
    while (Bytes() > maxBytes_ && current_ > 1) {
        // Many at a time: to look for the rows that are still in use takes longer than a step.
        const std::size_t dropped = std::max<std::size_t>(1, current_ / 4);
        states_.erase(states_.begin(), states_.begin() + static_cast<std::ptrdiff_t>(dropped));
        current_ -= dropped;
        DropUnusedRows();
    }
}

void ProjectHistory::DropUnusedRows()
{
    std::vector<bool> used(pool_.Size());
    for (const State& state : states_)
        for (const RowNumber number : *state.rows)
            used[number] = true;
    pool_.KeepOnly(used);
}

const Text* ProjectHistory::UndoName() const
{
    return current_ == 0 ? nullptr : &states_[current_].name;
}

const Text* ProjectHistory::RedoName() const
{
    return current_ + 1 == states_.size() ? nullptr : &states_[current_ + 1].name;
}

ProjectHistory::Restored ProjectHistory::Undo()
{
    return GoTo(current_ - 1);
}

ProjectHistory::Restored ProjectHistory::Redo()
{
    return GoTo(current_ + 1);
}

ProjectHistory::Restored ProjectHistory::GoTo(std::size_t number)
{
    const State& before = states_[current_];
    const State& now = states_[number];
    Restored restored;
    UnpackSettings(*now.settings, project_);
    FileList& files = project_.Files;
    if (now.rows != before.rows) {
        files.rows.resize(now.rows->size());
        std::ranges::transform(*now.rows, files.rows.begin(),
                               [&](RowNumber row) { return UnpackRow(pool_.At(row)); });
        restored = {.rowsChanged = true, .newRows = RowsNotIn(*before.rows, *now.rows)};
    }
    files.sortKey = now.sortKey;
    files.sortDescending = now.sortDescending;
    files.sorted = now.sorted;
    state_.ProjectIsDirty = now.isDirty;
    current_ = number;
    ++revision_;
    return restored;
}

std::vector<std::size_t> ProjectHistory::RowsNotIn(const RowNumbers& before,
                                                   const RowNumbers& now) const
{
    std::vector<bool> wasThere(pool_.Size());
    for (const RowNumber number : before)
        wasThere[number] = true;
    std::vector<std::size_t> rows;
    for (std::size_t i = 0; i < now.size(); ++i)
        if (!wasThere[now[i]])
            rows.push_back(i);
    return rows;
}

} // namespace quillon
