"""A desktop to drive Quillon on: a screen of its own, a window manager, a pointer and a keyboard.

Controls are found as a screen reader finds them, by role and name, so a control without a name
fails here too. Pointer and keys are those of the X server: the program can't tell them from a hand.
"""

import os
import subprocess

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

DEADLINE_SECONDS = 60


class NeverCame(Exception):
    pass


def wait_for(what, condition):
    """The first true answer of `condition`, asked again and again while events come in.

    A window changes while its controls are read: the rows of a list that is being filled are
    replaced, and the former ones no longer answer. That is no answer yet, not a failure.
    """
    context = GLib.MainContext.default()
    deadline = GLib.get_monotonic_time() + DEADLINE_SECONDS * 1_000_000
    tick = GLib.timeout_add(20, lambda: True)
    try:
        while GLib.get_monotonic_time() < deadline:
            try:
                answer = condition()
            except GLib.Error as error:
                if error.domain != "atspi_error":
                    raise
                answer = None
            if answer:
                return answer
            context.iteration(True)
    finally:
        GLib.source_remove(tick)
    raise NeverCame(what)


class Control:
    def __init__(self, accessible):
        self.accessible = accessible

    def name(self):
        # Qt's own dialogs name a field by its caption, colon and all.
        return self.accessible.get_name().removesuffix(":")

    def role(self):
        return self.accessible.get_role_name()

    def is_usable(self):
        states = self.accessible.get_state_set()
        return states.contains(Atspi.StateType.SHOWING) and states.contains(
            Atspi.StateType.SENSITIVE
        )

    def is_active(self):
        return self.accessible.get_state_set().contains(Atspi.StateType.ACTIVE)

    def has_focus(self):
        return self.accessible.get_state_set().contains(Atspi.StateType.FOCUSED)

    def text(self):
        return Atspi.Text.get_text(self.accessible, 0, -1)

    def children(self):
        return [
            Control(child)
            for child in (
                self.accessible.get_child_at_index(i)
                for i in range(self.accessible.get_child_count())
            )
            if child
        ]

    def descendants(self):
        # A long list holds its rows as children; nothing that is looked for lies in them.
        for child in self.children() if self.accessible.get_child_count() < 500 else []:
            yield child
            yield from child.descendants()

    def centre(self):
        box = self.accessible.get_extents(Atspi.CoordType.SCREEN)
        return box.x + box.width // 2, box.y + box.height // 2


def start_screen():
    """An X server of its own, and the number that it tells once it takes clients."""
    told, number = os.pipe()
    # A server restarts when its last client ends, and drops clients that are just connecting.
    screen = subprocess.Popen(
        ["Xvfb", "-noreset", "-displayfd", str(number), "-screen", "0", "1280x900x24"],
        pass_fds=[number],
        stderr=subprocess.DEVNULL,
    )
    os.close(number)
    with os.fdopen(told) as line:
        os.environ["DISPLAY"] = ":" + line.readline().strip()
    return screen


class Desktop:
    """A screen with the program on it."""

    def __init__(self, program, environment):
        self.processes = []
        self.environment = {**environment, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        try:
            self.processes.append(start_screen())
            self.processes.append(subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL))
            # A window that comes up while the window manager starts may be lost to it.
            wait_for("the window manager", self.has_manager)
            self.start(program)
        except BaseException:
            # What goes on would hold the test's output open.
            self.end()
            raise

    def start(self, program):
        """Runs the program; a former one has ended."""
        self.program = subprocess.Popen(program, env={**os.environ, **self.environment})
        self.processes.append(self.program)

    @staticmethod
    def has_manager():
        answer = subprocess.run(["xdotool", "get_num_desktops"], capture_output=True, check=False)
        return answer.returncode == 0

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.end()

    def end(self):
        for process in reversed(self.processes):
            process.kill()
            process.wait()

    def windows(self):
        root = Atspi.get_desktop(0)
        for i in range(root.get_child_count()):
            application = root.get_child_at_index(i)
            if application and application.get_name() == "quillon":
                yield from Control(application).children()

    def window(self, title):
        """The window with this title, once it stands in its place and has the keyboard."""

        def front():
            for window in self.windows():
                if window.name() == title and window.is_active():
                    return window
            return None

        return wait_for(f"the window '{title}'", front)

    def is_open(self, title):
        return any(window.name() == title for window in self.windows())

    def find(self, window, role, name):
        def usable():
            for control in window.descendants():
                if control.role() == role and control.name() == name and control.is_usable():
                    return control
            return None

        return wait_for(f"the {role} '{name}' in '{window.name()}'", usable)

    def click(self, control):
        x, y = control.centre()
        self._xdotool("mousemove", "--sync", str(x), str(y), "click", "1")

    def click_into(self, control):
        self.click(control)
        wait_for(f"the focus on '{control.name()}'", control.has_focus)

    def keys(self, *keys):
        self._xdotool("key", "--clearmodifiers", *keys)

    def type(self, text):
        self._xdotool("type", "--clearmodifiers", "--delay", "1", text)

    def picture(self, path):
        subprocess.run(["import", "-window", "root", path], check=True)

    @staticmethod
    def _xdotool(*arguments):
        subprocess.run(["xdotool", *arguments], check=True)
