#include "ui/controls/complete_variable.h"

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
        if (isPuttingIn_ || TypesOn(text))
            return;
        through_.reset();
        // While the user deletes "%PROGRAMFILES\" from its end, "%PR" must not be completed again.
        const bool isDeleting = last_.size() > text.size() && last_.startsWith(text);
        const auto completed = CompleteVariablePrefix(FromQt(text), table_);
        if (isDeleting || !completed)
            return;
        through_.emplace(FromQt(text), *completed);
        Show(*completed);
    }

    /// True where the text is a completed variable and one character more, which counts as a part
    /// of the variable as long as it goes on with its letters.
    bool TypesOn(const QString& text)
    {
        if (!through_ || text.size() != shown_.size() + 1 || !text.startsWith(shown_))
            return false;
        if (const auto shown = through_->Type(FromQt(text.right(1))))
            Show(*shown);
        if (!through_->Follows())
            through_.reset();
        return true;
    }

    /// Put in as typing is, so that it can be undone.
    void Show(const Text& text)
    {
        const QScopedValueRollback isPuttingIn(isPuttingIn_, true);
        shown_ = ToQt(text);
        field_->selectAll();
        field_->insert(shown_);
    }

    QLineEdit* field_;
    PrefixTable table_;
    QString last_;
    // The completed variable, while its user may still be typing its letters.
    std::optional<TypedThrough> through_;
    QString shown_;
    bool isPuttingIn_ = false;
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
