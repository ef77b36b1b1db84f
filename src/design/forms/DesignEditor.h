// What the editors of the design's objects share: number fields that correct themselves when they
// are left, options for a number, colours, files.
#pragma once

#include "project/design_keys.h"
#include "ui/controls/ColourButton.h"
#include "ui/kit/Form.h"

namespace quillon {

class PathLabel;
class UpDownArrows;

class DesignEditor : public EditorForm {
protected:
    using EditorForm::EditorForm;

    /// What an entry becomes when its field is left.
    using EntryCheck = std::function<Text(const Text& entry)>;

    /// Whether a number is checked only when the user has changed it, so that one from elsewhere
    /// stays as it is, or also on each OK.
    enum class OnOk { ChecksWhatIsChanged, ChecksAlways };
    /// A field for a number of a record.
    QLineEdit* NumberField(QLineEdit*& member, const char* name, Integer& value, EntryCheck check,
                           OnOk onOk = OnOk::ChecksWhatIsChanged);
    /// The field of a number that is kept as text, or that something else stores.
    QLineEdit* CheckedField(QLineEdit*& member, const char* name, const Text& text,
                            EntryCheck check);

    struct NumberOption {
        QRadioButton*& member;
        const char* name;
        const char* caption;
        Integer value;
    };
    /// An option that stores its value where it is chosen.
    QRadioButton* OptionOf(Integer& value, const NumberOption& option);
    /// Options that are in one frame. A value that none has chooses the first.
    Piece Options(Integer& value, std::initializer_list<NumberOption> options);

    /// The list of the colours that can be taken out of a picture. A number that is none of them
    /// shows the default, and stays in the record until a colour is chosen.
    QComboBox* TransparentColorList(QComboBox*& member, const char* name, Integer& value);

    ColourButton* ColourOf(ColourButton*& member, const char* name, const Text& caption,
                           Colour& value);

    /// A label for a file's path, which is stored; `use` shows another one in it.
    PathLabel* FileLabel(PathLabel*& member, const char* name, Text& value);
};

/// The path that a `FileLabel` shows.
Text PathIn(const PathLabel* label);

} // namespace quillon
