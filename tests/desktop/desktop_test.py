"""How the desktop's driver waits for a program whose windows change while they are read."""

import unittest

from gi.repository import GLib

import desktop


def error_of(domain):
    return GLib.Error("No such object path", domain, 1)


class WaitFor(unittest.TestCase):
    def test_asks_again_after_a_control_that_went_while_it_was_read(self):
        answers = [error_of("atspi_error"), None, error_of("atspi_error"), "the row"]

        def condition():
            answer = answers.pop(0)
            if isinstance(answer, GLib.Error):
                raise answer
            return answer

        self.assertEqual(desktop.wait_for("the row", condition), "the row")
        self.assertEqual(answers, [])

    def test_fails_with_what_it_waited_for(self):
        def condition():
            raise error_of("atspi_error")

        desktop.DEADLINE_SECONDS = 0.1
        with self.assertRaisesRegex(desktop.NeverCame, "the row"):
            desktop.wait_for("the row", condition)

    def test_passes_other_errors_on(self):
        def condition():
            raise error_of("g-io-error")

        with self.assertRaises(GLib.Error):
            desktop.wait_for("the row", condition)


unittest.main()
