// What all dialogs share: a title, controls that are bound to fields, OK and Cancel. A form loads
// its controls when it is made and touches nothing else until OK; Cancel leaves all as it was.
#pragma once

#include "helpers/number_text.h"
#include "ui/kit/form_kit.h"

#include <QDialog>
#include <functional>
#include <span>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace quillon {

struct Session;

class Form : public QDialog {
public:
    // Set by `cmdOK`.
    bool OK = false;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;

    /// Shows the form and waits; true when it was left with OK.
    bool ShowModal();

protected:
    /// `name` is the class's own, for tests and style sheets.
    Form(const char* name, const Text& title, QWidget* parent);

    // Controls bound to a field, which they load now and store on OK. `maxLength` is in bytes on
    // file (see `MaxTextLength`).
    QLineEdit* Field(QLineEdit*& member, const char* name, Text& value, int maxLength = 0);
    QPlainTextEdit* Area(QPlainTextEdit*& member, const char* name, Text& value, int maxLength = 0);
    /// A box for a flag, 0 and -1.
    QCheckBox* Check(QCheckBox*& member, const char* name, const Text& caption, Flag& value);
    /// A box for a number 0 or 1.
    QCheckBox* Check01(QCheckBox*& member, const char* name, const Text& caption, Integer& value);
    /// An option for a flag. The options that shut each other out are in one frame, and one whose
    /// flag is off is only unticked. Of several whose flags are on, the last one is chosen.
    QRadioButton* Option(QRadioButton*& member, const char* name, const Text& caption, Flag& value);
    /// A list with one row chosen, by its place. A value outside the rows chooses none, and then
    /// nothing is stored.
    QComboBox* Choice(QComboBox*& member, const char* name, std::span<const char* const> rows,
                      Integer& value);

    QPushButton* Button(QPushButton*& member, const char* name, const Text& caption,
                        std::function<void()> press);
    /// The row with `cmdOK` and `cmdCancel`.
    Piece OkCancel();
    /// The row with `cmdOK` alone.
    Piece OkOnly();

    /// Lays the pieces out; the first control that takes keys gets them.
    void Arrange(Piece pieces);

    bool event(QEvent* event) override;

    /// Whether OK may close the form; where not, it has shown the reason.
    virtual bool MayClose() { return true; }
    /// After the bound fields on OK: what else is to be stored.
    virtual void Store() {}

    /// For a control that no function above binds.
    void Bind(std::function<void()> store) { stores_.push_back(std::move(store)); }

private:
    void PressOk();
    void KeepTextWhole();

    // A field whose text the project file cuts at a length.
    struct Limit {
        QWidget* field;
        int maxLength;
    };

    std::vector<std::function<void()>> stores_;
    std::vector<Limit> limits_;
};

/// A form that edits the open project: OK marks it changed.
class EditorForm : public Form {
protected:
    EditorForm(const char* name, const Text& title, Session& session, QWidget* parent);

    void Store() override;

    Session& session_;
};

} // namespace quillon
