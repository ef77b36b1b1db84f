// A user of the pages whose steps are prepared: what is done on each page that comes up, and which
// button is pressed then. A page for which there is no step fails the test and cancels.
#pragma once

#include "runtime/pages/page.h"
#include "runtime/setup_variables.h"

#include <gtest/gtest.h>

#include <deque>

namespace quillon::test {

class ScriptedPages : public PageView {
public:
    struct Step {
        PageKind kind;
        PageAction action = PageAction::Next;
        // What the user does on it before.
        std::function<void(SetupPage& page, const PageListener& listener)> act = {};
    };

    explicit ScriptedPages(std::deque<Step> steps = {}) : steps_(std::move(steps)) {}
    ~ScriptedPages() override { EXPECT_TRUE(steps_.empty()) << steps_.size() << " pages missing"; }
    ScriptedPages(const ScriptedPages&) = delete;
    ScriptedPages& operator=(const ScriptedPages&) = delete;

    PageAction Show(SetupPage& page, const PageListener& listener) override
    {
        shown.push_back(page);
        if (steps_.empty() || steps_.front().kind != page.kind) {
            ADD_FAILURE() << "page " << int(page.kind) << " was not expected";
            return PageAction::Cancel;
        }
        const Step step = steps_.front();
        steps_.pop_front();
        if (step.act)
            step.act(page, listener);
        return step.action;
    }
    void Hide() override { ++stepsAside; }
    void SetVariables(const SetupVariables& given) override { variables.push_back(given); }

    std::vector<SetupPage> shown;
    int stepsAside = 0;
    std::vector<SetupVariables> variables; // one for each page, and those of the end

private:
    std::deque<Step> steps_;
};

/// A step that types a text and leaves the field.
inline auto Typing(PageField field, Text text)
{
    return [field, text](SetupPage& page, const PageListener& listener) {
        page.Find(field)->text = text;
        listener(page, field);
    };
}

} // namespace quillon::test
