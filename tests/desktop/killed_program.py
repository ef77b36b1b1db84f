"""The program is killed at work, by a fault of its own and from outside; the next start has the edits."""

import os
import pathlib
import signal
import sys
import tempfile

from desktop import Desktop, wait_for

(QUILLON,) = sys.argv[1:2]
PRODUCT = "Tavrell Quillon 2004"
# The tool writes beside itself where it may.
RECOVERY = pathlib.Path(QUILLON).parent / "Recovery"


def copies(home):
    folders = [RECOVERY, *home.rglob("Recovery")]
    return [path for folder in folders for path in folder.glob("*.qnp")]


def answer(desktop, title, button):
    window = desktop.window(title)
    desktop.click(desktop.find(window, "push button", button))
    wait_for(f"the closed '{title}'", lambda: not desktop.is_open(title))


def name_field(desktop):
    window = desktop.window(f"{PRODUCT} - [noname]")
    return desktop.find(window, "text", "Projektnamn")


def kill(desktop, number):
    desktop.program.send_signal(number)
    wait_for("the end of the program", lambda: desktop.program.poll() is not None)
    assert desktop.program.returncode == -number, desktop.program.returncode


def wait_for_name(desktop, name):
    field = name_field(desktop)
    wait_for(f"the name '{name}'", lambda: field.text() == name)


def decline_folder(desktop):
    # A killed program has not stored that the question was asked before.
    answer(desktop, PRODUCT, "Nej")


def restart_into_copy(desktop, name):
    desktop.start([QUILLON])
    decline_folder(desktop)
    answer(desktop, "Återskapa projekt", "Ja")
    wait_for_name(desktop, name)


def work_and_die(desktop, home):
    decline_folder(desktop)
    desktop.click_into(name_field(desktop))
    desktop.type("Fel")
    wait_for_name(desktop, "Fel")
    # A fault of the program itself: what was typed is saved at once.
    kill(desktop, signal.SIGSEGV)
    restart_into_copy(desktop, "Fel")
    desktop.click_into(name_field(desktop))
    before = {path: path.read_bytes() for path in copies(home)}
    desktop.keys("ctrl+a")
    desktop.type("Kvar")
    # A kill from outside leaves no time to save: only the copy made by the timer is there.
    wait_for(
        "the copy of the last edit",
        lambda: any("Kvar".encode("cp1252") in path.read_bytes() for path in copies(home)),
    )
    assert before, "the copy that was opened had gone"
    kill(desktop, signal.SIGKILL)
    restart_into_copy(desktop, "Kvar")


def leave(desktop):
    desktop.keys("ctrl+q")
    answer(desktop, PRODUCT, "Nej")  # it is not to be saved
    wait_for("the end of the program", lambda: desktop.program.poll() is not None)
    assert desktop.program.returncode == 0, desktop.program.returncode


def main():
    with tempfile.TemporaryDirectory() as name:
        home = pathlib.Path(name)
        environment = {
            "HOME": name,
            "XDG_CONFIG_HOME": str(home / "config"),
            "QUILLON_DRIVE_C": str(home / "c"),
        }
        assert not copies(home), "a copy was left by an earlier program"
        with Desktop([QUILLON], environment) as desktop:
            try:
                work_and_die(desktop, home)
                leave(desktop)
            except Exception:
                desktop.picture(os.environ.get("QUILLON_FAILURE_PICTURE", "failure.png"))
                raise
        assert not copies(home), "left without saving, and yet a copy stays"


main()
