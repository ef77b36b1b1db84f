// A machine with a Visual Basic project on it, and the windows that its importers open.
#pragma once

#include "importers/forms/import_forms.h"
#include "shell/fake_window.h"
#include "support/window_test.h"

namespace quillon::test {

class ImportFormTest : public WindowTest {
protected:
    ImportFormTest()
    {
        machine.files.Put("C:\\Quillon\\ImportData.txt", "[Controls]\nGRID32.OCX\n");
        for (const char* const name :
             {"asycfilt.dll", "comcat.dll", "olepro32.dll", "oleaut32.dll", "stdole2.tlb"}) {
            machine.files.Put(Text("C:\\VB\\Wizards\\PDWizard\\Redist\\") + name, "x");
            machine.files.Put(Text("C:\\VB\\setupkit\\kitfil32\\sys32\\") + name, "x");
        }
        machine.files.Put("C:\\VB\\setupkit\\kitfil32\\sys32\\ctl3d32.dll", "x");
        for (const char* const name : {"msvbvm50.dll", "msvbvm60.dll", "grid32.ocx", "mfc42.dll",
                                       "msvcrt.dll", "msadodc.ocx", "msstdfmt.dll"})
            machine.files.Put(Text("C:\\WINDOWS\\SYSTEM32\\") + name, "x");
        machine.files.Put("C:\\Proj\\Kund.vbp", "Type=Exe\r\nObject={1}; GRID32.OCX\r\n");
        machine.files.Put("C:\\Proj\\Kund.exe", "MZ");
    }

    ImportContext Context()
    {
        return {.session = session,
                .window = window,
                .forms = {.chooseProgramDestination =
                              [this](const ImportUser::ProgramQuestion& question, QWidget*) {
                                  captions.push_back(question.caption);
                                  return destination;
                              },
                          .editIcon =
                              [this](FileListRow&, const Text& title, QWidget*) {
                                  captions.push_back(title);
                                  return false;
                              },
                          .showMDADetails = [this](QWidget*) { captions.emplace_back("MDA"); },
                          .showTestNETFramework =
                              [this](QWidget*) {
                                  captions.emplace_back("NET");
                                  session.project.NET.NET_TestIfInstalled = kOn;
                              }}};
    }

    void Choose(QWidget& form, const char* button, const Text& file)
    {
        ask.choices.push_back({file.empty() ? std::vector<Text>() : std::vector<Text>{file}});
        Click(form, button);
    }
    void Expect(BoxKind kind, const Text& title) { ask.Expect({kind, title}); }

    FakeWindow window;
    std::optional<Text> destination = "%DESTDIR";
    std::vector<Text> captions;
};

} // namespace quillon::test
