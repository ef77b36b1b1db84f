"""A newcomer's first package, from an empty screen to a verified folder, with keys and clicks."""

import os
import pathlib
import subprocess
import sys
import tempfile

from desktop import Desktop, wait_for

QUILLON, QUILLONC = sys.argv[1:3]
PRODUCT = "Tavrell Quillon 2004"


def make_sources(folder):
    sources = folder / "src" / "prov"
    sources.mkdir(parents=True)
    (sources / "las mig.txt").write_bytes(b"Hej.\r\n" * 100)
    (sources / "prov.dat").write_bytes(bytes(range(256)) * 64)
    return sources


def answer_folder_offer(desktop):
    window = desktop.window(PRODUCT)
    desktop.click(desktop.find(window, "push button", "Nej"))
    wait_for("the closed offer", lambda: not desktop.is_open(PRODUCT))


def fill_header(desktop, main):
    desktop.click_into(desktop.find(main, "text", "Projektnamn"))
    desktop.type("Prov")
    desktop.keys("Tab")
    # The variable completes itself behind its third character.
    desktop.type("%PR")
    desktop.type("Prov")
    folder = desktop.find(main, "text", "Huvudkatalog")
    wait_for("the completed main folder", lambda: folder.text() == "%PROGRAMFILES\\Prov")


def add_files(desktop, main, sources):
    desktop.click(desktop.find(main, "push button", "Addera filer"))
    chooser = desktop.window("Addera filer")
    desktop.click_into(desktop.find(chooser, "text", "Filnamn"))
    desktop.keys("ctrl+a")  # the pattern that stands there from the start
    desktop.type(str(sources))
    desktop.keys("Return")
    desktop.find(chooser, "table cell", "las mig.txt")
    desktop.type(" ".join(f'"{path.name}"' for path in sources.iterdir()))
    desktop.keys("Return")
    desktop.window("Destinationskatalog")
    desktop.keys("Return")
    wait_for("two rows in the status bar", lambda: status(main).startswith("2 objekt"))


def status(main):
    for control in main.descendants():
        if control.role() == "label" and " objekt," in control.name():
            return control.name()
    return ""


def save(desktop, project):
    desktop.keys("ctrl+s")
    chooser = desktop.window("Spara projekt")
    desktop.click_into(desktop.find(chooser, "text", "Filnamn"))
    desktop.type(str(project.with_suffix("")))
    desktop.keys("Return")
    return desktop.window(f"{PRODUCT} - [{project.name}]")


def create(desktop, main, package):
    desktop.click(desktop.find(main, "push button", "Skapa"))
    form = desktop.window("Skapa installation")
    desktop.click(desktop.find(form, "radio button", "CD/DVD"))
    desktop.click_into(desktop.find(form, "text", "Destinationskatalog"))
    desktop.keys("ctrl+a")
    desktop.type(str(package).replace("/", "\\").join(["Z:", ""]))
    desktop.click(desktop.find(form, "push button", "Skapa"))
    desktop.window("Katalogen existerar inte")
    desktop.keys("Return")
    lines = desktop.find(form, "list", "Status")
    wait_for(
        "the last status line",
        lambda: any(line.name() == "Färdig!" for line in lines.children()),
    )
    desktop.keys("Escape")
    wait_for("the closed form", lambda: not desktop.is_open("Skapa installation"))


def quit_by_menu(desktop, project):
    desktop.window(f"{PRODUCT} - [{project.name}]")
    desktop.keys("alt+a")
    desktop.keys("a")
    # Create has changed the project's last folder, so the tool asks whether to save it.
    desktop.window(PRODUCT)
    desktop.keys("Return")
    wait_for("the end of the program", lambda: desktop.program.poll() is not None)
    assert desktop.program.returncode == 0, desktop.program.returncode


def verify(package, project):
    answer = subprocess.run(
        [QUILLONC, "verify", str(package)], capture_output=True, text=True, check=False
    )
    assert answer.returncode == 0, answer.stdout + answer.stderr
    assert "2 rader" in answer.stdout, answer.stdout
    names = {path.name.upper() for path in package.iterdir()}
    assert {"SETUP.EXE", "QNSETUP.INF", "FILELIST.INF", "FILEDATA.DAT"} <= names, names
    saved = project.read_text(encoding="cp1252")
    assert "ProjectName = Prov" in saved
    assert "LastDir_Create_CdCompress = Z:" in saved


def main():
    with tempfile.TemporaryDirectory() as name:
        home = pathlib.Path(name)
        environment = {
            "HOME": name,
            "XDG_CONFIG_HOME": str(home / "config"),
            "QUILLON_DRIVE_C": str(home / "c"),
        }
        sources, project, package = make_sources(home), home / "prov.qnp", home / "ut"
        with Desktop([QUILLON], environment) as desktop:
            try:
                answer_folder_offer(desktop)
                window = desktop.window(f"{PRODUCT} - [noname]")
                fill_header(desktop, window)
                add_files(desktop, window, sources)
                window = save(desktop, project)
                create(desktop, window, package)
                quit_by_menu(desktop, project)
            except Exception:
                desktop.picture(os.environ.get("QUILLON_FAILURE_PICTURE", "failure.png"))
                raise
        verify(package, project)


main()
