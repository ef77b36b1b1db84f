#include "shell/moved_rows.h"

#include <algorithm>

namespace quillon {

void ShowMovedRows(MainWindow& window, const NewPlaces& places)
{
    std::vector<std::size_t> selected;
    for (const std::size_t row : window.SelectedRows())
        selected.push_back(places[row]);
    std::ranges::sort(selected);
    window.ShowFileList(selected);
}

} // namespace quillon
