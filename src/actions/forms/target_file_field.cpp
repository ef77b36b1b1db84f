#include "actions/forms/target_file_field.h"

#include "ui/controls/complete_variable.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

void EditTargetFile(QLineEdit* field, const Text& fieldName, Ask& ask)
{
    CompleteVariables(field, PrefixTable::ProgramOrDocument);
    OnLeave(field, [field, fieldName, &ask] {
        const Text typed = FromQt(field->text());
        const Text path = TidyProgramPath(typed);
        if (path != typed)
            field->setText(ToQt(path));
        WarnIfLowerCaseVariable(path, fieldName, ask);
    });
}

} // namespace quillon
