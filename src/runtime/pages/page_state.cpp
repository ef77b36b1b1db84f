#include "runtime/pages/page_state.h"

#include "runtime/pages/disk_space.h"

namespace quillon {

namespace {

template <class Use>
auto WithPlanInput(const PageState& state, Use use)
{
    const PageInput& input = state.input;
    const SetupVariables variables = state.Variables();
    return use(
        PlanInput{state.setup, input.rows, variables, input.texts, input.host, input.target});
}

} // namespace

SetupVariables PageState::Variables() const
{
    return MakeSetupVariables(
        {setup, input.host, input.target, input.packageFolder,
         choices.destination.empty() ? input.destination : choices.destination, input.scope});
}

Text PageState::MainFolder() const
{
    return Variables().Value(NameOf(VariableMeaning::MainFolder));
}

Text PageState::ProjectTitle() const
{
    return input.texts(Message::Title, setup.project.ProjectName.ProjectName);
}

std::uint64_t PageState::Needed() const
{
    return WithPlanInput(*this, NeededSpace);
}

std::uint64_t PageState::MinSpace() const
{
    return WithPlanInput(*this, MinSpaceNeeded);
}

bool PageState::CanBeInstalled(int component) const
{
    return WithPlanInput(
        *this, [&](const PlanInput& plan) { return quillon::CanBeInstalled(plan, component); });
}

Text GroupsFolder(const PageState& state)
{
    const Target& target = state.input.target;
    const Text common = target.Folder(TargetFolder::CommonPrograms);
    const bool forAll = state.setup.project.ProgramGroup.ProgramGroup_AllUsers != kOff;
    return forAll && !common.empty() ? common : target.Folder(TargetFolder::Programs);
}

} // namespace quillon
