"""What the program reads besides its databases, which is nothing, and what it leaves behind."""

from program import contents
from system_test_case import ABOVE_STATUS_BAR, SystemTestCase, main

# The cache of the fonts, which the first program of any kind that shows a text makes for its user
# where the system has none.
FONT_CACHE = ('home/.cache', 'home/.cache/fontconfig')


def is_of_font_cache(path):
    return path in FONT_CACHE or path.startswith(f'{FONT_CACHE[-1]}/')


class Use(SystemTestCase):
    def use(self):
        """What the main window does by itself, once."""
        run = self.program.start()
        window = self.main_window(run)
        self.expect_chart(window)
        for key in ('ctrl+r', 'ctrl+F1', 'ctrl+F1', 'ctrl+s', 'ctrl+s'):
            self.desktop.press(key)
        self.desktop.settled_picture(window, ABOVE_STATUS_BAR)
        self.quit(run, window)

    def test_leaves_nothing_behind(self):
        everywhere = self.program.folder.parent
        before = contents(everywhere)
        self.use()
        after = contents(everywhere)
        self.assertEqual(
            {path: state for path, state in after.items() if not is_of_font_cache(path)}, before)


class Options(SystemTestCase):
    def look(self, *options):
        run = self.program.start(*options)
        window = self.main_window(run)
        self.expect_chart(window)
        look = self.desktop.settled_picture(window, ABOVE_STATUS_BAR)
        self.quit(run, window)
        return look

    def test_are_not_read(self):
        plain = self.look()
        self.assertEqual(self.look('-style', 'windows', '--help', '-platform', 'offscreen'), plain)


if __name__ == '__main__':
    main()
