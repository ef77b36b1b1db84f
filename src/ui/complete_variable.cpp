#include "ui/complete_variable.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

class VariableCompleter : public QObject {
public:
    VariableCompleter(QLineEdit* field, PrefixTable table)
        : QObject(field), field_(field), table_(table), last_(field->text())
    {
        connect(field, &QLineEdit::textEdited, this, [this] { Complete(); });
        connect(field, &QLineEdit::textChanged, this, [this] { last_ = field_->text(); });
    }

private:
    void Complete()
    {
        const QString text = field_->text();
        // Whoever deletes his way back over "%PROGRAMFILES\" does not want it once more at "%PR".
        const bool isDeleting = last_.size() > text.size() && last_.startsWith(text);
        const auto completed = CompleteVariablePrefix(FromQt(text), table_);
        if (isDeleting || !completed)
            return;
        // Put in as typing is, so that it can be undone.
        field_->selectAll();
        field_->insert(ToQt(*completed));
    }

    QLineEdit* field_;
    PrefixTable table_;
    QString last_;
};

} // namespace

void CompleteVariables(QLineEdit* field, PrefixTable table)
{
    new VariableCompleter(field, table);
}

void AppendVariable(QLineEdit* field, Ask& ask)
{
    if (const auto variable = ask.ChooseVariable()) {
        // Put in as typing is, so that it can be undone.
        field->end(false);
        field->insert(ToQt(*variable));
    }
    field->setFocus();
}

} // namespace quillon
