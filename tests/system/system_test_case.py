"""What the system tests are made of: a case with a desktop and a program directory of its own, and
the running of one case for CTest."""

import sys
import unittest

from desktop import Desktop
from program import Program

SKIPPED = 77

MAIN_WINDOW = 'Ondara 2.1'
ERROR_BOX = 'Ondara'  # the run-time's, and each that has no title

# Parts of the main window, as geometries, and a place in its list where a name stands.
LIST = '220x120+16+110'
CHART = '320x150+268+100'
ABOVE_STATUS_BAR = '605x500+0+0'
A_NAME = (60, 134)


class SystemTestCase(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(name_of(self))
        self.addCleanup(self.desktop.close)
        self.program = Program(self.desktop.name)
        self.addCleanup(self.program.remove)

    def main_window(self, run):
        """The main window of a program that was started last, once it stands there at rest."""
        window = self.desktop.window(MAIN_WINDOW, run)
        self.desktop.settled_picture(window, ABOVE_STATUS_BAR)
        return window

    def expect_change(self, window, act, *parts):
        """The act changes each of these parts of the window."""
        before = [self.desktop.settled_picture(window, part) for part in parts]
        act()
        for part, look in zip(parts, before):
            self.desktop.until_changed(window, part, look)

    def expect_chart(self, window):
        """A click on a name charts it."""
        self.expect_change(window, lambda: self.desktop.click(window, *A_NAME), CHART, LIST)

    def expect_end(self, run, code=0):
        self.desktop.until(lambda: run.poll() is not None, 'the end of the program')
        self.assertEqual(run.returncode, code)

    def quit(self, run, window):
        """Ends the program as its user does."""
        self.desktop.raise_window(window)
        self.desktop.press('ctrl+q')
        self.expect_end(run)


def name_of(case):
    return case.id().removeprefix('__main__.')


def cases_in(suite):
    for test in suite:
        if isinstance(test, unittest.TestSuite):
            yield from cases_in(test)
        else:
            yield test


def main():
    """--list names the cases of the file; the name of a case runs it."""
    asked = sys.argv[1]
    module = sys.modules['__main__']
    loader = unittest.defaultTestLoader
    if asked == '--list':
        print(*map(name_of, cases_in(loader.loadTestsFromModule(module))), sep=';', end='')
        return
    result = unittest.TextTestRunner(verbosity=2).run(loader.loadTestsFromName(asked, module))
    if not result.wasSuccessful():
        sys.exit(1)
    if result.skipped:
        sys.exit(SKIPPED)
