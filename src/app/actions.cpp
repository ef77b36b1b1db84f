#include "app/actions.h"

#include "app/MainForm.h"

#include <map>

namespace quillon {

namespace {

template <Tab tab>
void Select(MainForm& form)
{
    form.SelectTab(tab);
}

// clang-format off
const std::map<int, Action> kActions = {
    {112, [](MainForm& form) { form.close(); }},
    {147, Select<Tab::Files>},
    {148, Select<Tab::Design>},
    {149, Select<Tab::Dialogs>},
    {150, Select<Tab::Registry>},
    {151, Select<Tab::IniFiles>},
    {152, Select<Tab::Components>},
};
// clang-format on

} // namespace

Action FindAction(int id)
{
    const auto found = kActions.find(id);
    return found == kActions.end() ? nullptr : found->second;
}

} // namespace quillon
