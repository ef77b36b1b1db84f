#include "design/forms/DesignEditor.h"

#include "design/transparent_colours.h"
#include "shell/session.h"
#include "ui/controls/PathLabel.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <algorithm>
#include <limits>
#include <memory>

namespace quillon {

namespace {

constexpr int kNumberCharacters = 6;

Integer StoredNumber(const QString& text)
{
    using Limits = std::numeric_limits<Integer>;
    return static_cast<Integer>(
        std::clamp<std::int64_t>(LeadingNumber(FromQt(text)), Limits::min(), Limits::max()));
}

} // namespace

QLineEdit* DesignEditor::NumberField(QLineEdit*& member, const char* name, Integer& value,
                                     EntryCheck check, OnOk onOk)
{
    QLineEdit* field = CheckedField(member, name, NumberText(value), check);
    // Once more, for an entry whose field was not left.
    Bind([field, shown = field->text(), &value, check = std::move(check), onOk] {
        if (onOk == OnOk::ChecksAlways || field->text() != shown)
            value = StoredNumber(ToQt(check(FromQt(field->text()))));
    });
    return field;
}

QLineEdit* DesignEditor::CheckedField(QLineEdit*& member, const char* name, const Text& text,
                                      EntryCheck check)
{
    auto* field = Named(member, name, new QLineEdit(ToQt(text)));
    field->setMaximumWidth(2 * kNumberCharacters * field->fontMetrics().averageCharWidth());
    OnLeave(field, [field, check = std::move(check)] {
        field->setText(ToQt(check(FromQt(field->text()))));
    });
    return field;
}

QRadioButton* DesignEditor::OptionOf(Integer& value, const NumberOption& option)
{
    auto* button =
        Named(option.member, option.name, new QRadioButton(QString::fromUtf8(option.caption)));
    button->setChecked(option.value == value);
    Bind([button, &value, number = option.value] {
        if (button->isChecked())
            value = number;
    });
    return button;
}

Piece DesignEditor::Options(Integer& value, std::initializer_list<NumberOption> options)
{
    auto* column = new QVBoxLayout;
    bool isChosen = false;
    for (const NumberOption& option : options) {
        column->addWidget(OptionOf(value, option));
        isChosen = isChosen || option.value == value;
    }
    if (!isChosen)
        options.begin()->member->setChecked(true);
    return column;
}

QComboBox* DesignEditor::TransparentColorList(QComboBox*& member, const char* name, Integer& value)
{
    QComboBox* list = Choice(member, name, kTransparentColorNames, value);
    if (list->currentIndex() >= 0)
        return list;
    list->setCurrentIndex(kDefaultTransparentColor);
    const auto isChosen = std::make_shared<bool>(false);
    const auto choose = [isChosen] { *isChosen = true; };
    connect(list, &QComboBox::currentIndexChanged, this, choose);
    connect(list, &QComboBox::activated, this, choose); // the one that is shown, too
    Bind([&value, stored = value, isChosen] {
        if (!*isChosen)
            value = stored;
    });
    return list;
}

ColourButton* DesignEditor::ColourOf(ColourButton*& member, const char* name, const Text& caption,
                                     Colour& value)
{
    auto* button = Named(member, name, new ColourButton(caption, session_.ask));
    button->SetColour(value);
    Bind([button, &value] { value = button->GetColour(); });
    return button;
}

PathLabel* DesignEditor::FileLabel(PathLabel*& member, const char* name, Text& value)
{
    auto* label = Named(member, name, new PathLabel, "Fil");
    label->ShowPath(ToQt(value));
    Bind([label, &value] { value = PathIn(label); });
    return label;
}

Text PathIn(const PathLabel* label)
{
    return FromQt(label->text());
}

} // namespace quillon
