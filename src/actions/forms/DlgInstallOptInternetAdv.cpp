#include "actions/forms/DlgInstallOptInternetAdv.h"

#include "actions/forms/DlgGetRegKey.h"
#include "actions/kept_path.h"
#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

using section::RunAppSelfX;

namespace {

constexpr int kLettersOfParameters = 50;
constexpr PathKind kProgram{"Programmet", "Lägg programmet i en katalog närmare roten."};

} // namespace

DlgInstallOptInternetAdv::DlgInstallOptInternetAdv(InternetAdvanced& values, Session& session,
                                                   QWidget* parent)
    : EditorForm("DlgInstallOptInternetAdv", "Internet - Avancerat", session, parent),
      values_(values), edited_(values)
{
    Check(NAMED(cADExpandEXEInWinTempMap),
          "&Packa upp filerna i den självuppackande installationen i Windows temporära katalog",
          edited_.ExpandEXEInWinTempMap);
    Arrange(VBox({
        cADExpandEXEInWinTempMap,
        ProgramFrame(),
        ReturnValuesFrame(),
        Named(NAMED(sProgramWarning),
              Note("Inparametrar, returvärden och nyckel sparas bara tillsammans med en "
                   "programfil.")),
        Stretch(),
        OkCancel(),
    }));
    for (QLineEdit* field : {tParam, tReturnValueExit, tReturnValueBack, tReturnValueDD})
        connect(field, &QLineEdit::textChanged, this, [this] { ShowWarning(); });
    ShowProgram();
}

Piece DlgInstallOptInternetAdv::ProgramFrame()
{
    RunAppSelfX& program = edited_.program;
    Named(NAMED(sProgramFilename), new PathLabel);
    Field(NAMED(tParam), program.Param, MaxTextLength(&RunAppSelfX::Param));
    Option(NAMED(oVisible), "Programmet är &visuellt och har ett grafiskt gränssnitt",
           program.VisibleWin);
    Named(NAMED(oInvisible),
          new QRadioButton("Programmet är &osynligt och saknar ett grafiskt gränssnitt"));
    oInvisible->setChecked(program.VisibleWin == kOff);
    return Frame(
        "Kör ett program i den självuppackande installationen",
        {Fields({{"Programfil:", sProgramFilename}}),
         HBox({Button(NAMED(cmdSelectProgram), "Vä&lj program...", [this] { SelectProgram(); }),
               Button(NAMED(cmdReset), "Ta bort program", [this] { Reset(); }), Stretch()}),
         Above("&Inparametrar till program:", MinWidth(kLettersOfParameters, tParam)), oVisible,
         oInvisible});
}

Piece DlgInstallOptInternetAdv::ReturnValuesFrame()
{
    RunAppSelfX& program = edited_.program;
    Field(NAMED(tReturnValueExit), program.ReturnValueExit,
          MaxTextLength(&RunAppSelfX::ReturnValueExit));
    Field(NAMED(tReturnValueBack), program.ReturnValueBack,
          MaxTextLength(&RunAppSelfX::ReturnValueBack));
    Field(NAMED(tReturnValueDD), program.ReturnValueDD, MaxTextLength(&RunAppSelfX::ReturnValueDD));
    Button(NAMED(CmdSelRegKey), "&Specificera nyckel i Registry...", [this] { SelectRegKey(); });
    return Frame("Hantering av returvärden",
                 {Fields({
                      {"&Avbryt vid följande returvärde:", tReturnValueExit},
                      {"&Backa vid följande returvärde:", tReturnValueBack},
                      {"&Ge %DESTDIR ett nytt värde vid följande returvärde:", tReturnValueDD},
                  }),
                  HBox({Stretch(), CmdSelRegKey})});
}

void DlgInstallOptInternetAdv::SelectProgram()
{
    Text folder = "C:\\";
    const auto path = ChooseKeptPath({.title = "Välj programfil",
                                      .filter = "Programfiler (*.exe)|*.exe",
                                      .defaultExtension = ".exe"},
                                     folder, MaxTextLength(&RunAppSelfX::ProgramFilename), kProgram,
                                     session_.ask);
    if (!path)
        return;
    edited_.program.ProgramFilename = *path;
    ShowProgram();
}

void DlgInstallOptInternetAdv::SelectRegKey()
{
    DlgGetRegKey(edited_.program, session_, this).ShowModal();
    ShowWarning();
}

// Without a program its settings are cleared too, as when the project is saved.
void DlgInstallOptInternetAdv::Reset()
{
    edited_.program = {};
    ShowProgram();
    for (QLineEdit* field : {tParam, tReturnValueExit, tReturnValueBack, tReturnValueDD})
        field->clear();
    oInvisible->setChecked(true);
    ShowWarning();
}

void DlgInstallOptInternetAdv::ShowProgram()
{
    const Text& program = edited_.program.ProgramFilename;
    sProgramFilename->ShowPath(ToQt(program));
    cmdReset->setEnabled(!program.empty());
    ShowWarning();
}

void DlgInstallOptInternetAdv::ShowWarning()
{
    RunAppSelfX shown = edited_.program;
    shown.Param = FromQt(tParam->text());
    shown.ReturnValueExit = FromQt(tReturnValueExit->text());
    shown.ReturnValueBack = FromQt(tReturnValueBack->text());
    shown.ReturnValueDD = FromQt(tReturnValueDD->text());
    sProgramWarning->setVisible(HasValuesWithoutProgram(shown));
}

void DlgInstallOptInternetAdv::Store()
{
    values_ = edited_;
    EditorForm::Store();
}

} // namespace quillon
