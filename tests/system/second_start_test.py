"""The program started while it runs."""

import os

from program import Program
from system_test_case import CHART, MAIN_WINDOW, SystemTestCase, main

REFUSAL = 'The requested application is already open'


class SecondStart(SystemTestCase):
    def setUp(self):
        super().setUp()
        self.first = self.program.start()
        self.window = self.main_window(self.first)

    def expect_refusal(self, second):
        box = self.desktop.window(REFUSAL, second)
        self.assertEqual(sorted(self.desktop.titles()), [MAIN_WINDOW, REFUSAL])
        self.assertIsNone(second.poll())
        self.desktop.raise_window(box)
        self.desktop.press('Return')
        self.expect_end(second)

    def test_is_refused_and_leaves_the_first_alone(self):
        self.expect_chart(self.window)
        chart = self.desktop.settled_picture(self.window, CHART)
        self.expect_refusal(self.program.start())
        self.assertEqual(self.desktop.settled_picture(self.window, CHART), chart)
        self.desktop.raise_window(self.window)
        self.expect_change(self.window, lambda: self.desktop.press('Down'), CHART)
        self.quit(self.first, self.window)

    def test_is_refused_by_another_path_to_the_same_file(self):
        link = self.program.home / 'ondara'
        os.link(self.program.file, link)
        self.expect_refusal(self.program.start(file=link))

    def test_is_a_first_one_after_the_end_of_the_first(self):
        self.quit(self.first, self.window)
        self.main_window(self.program.start())

    def test_is_a_first_one_after_the_first_was_killed(self):
        self.first.kill()
        self.first.wait()
        self.desktop.until(lambda: not self.desktop.titles(), 'the window of the killed one to go')
        self.main_window(self.program.start())

    def test_of_a_copy_is_no_second_one(self):
        copy = Program.lay_out(self.program.home / 'copy')
        self.program.start(file=copy / 'ondara')
        self.desktop.until(lambda: self.desktop.titles() == [MAIN_WINDOW] * 2, 'two main windows')


if __name__ == '__main__':
    main()
