"""The main window on a display, by keys and by mouse."""

from system_test_case import CHART, LIST, SystemTestCase, main

LOWER_NAMES = '220x60+16+170'  # below the name that has the focus at the start


class MainWindow(SystemTestCase):
    def setUp(self):
        super().setUp()
        self.ondara = self.program.start()
        self.window = self.main_window(self.ondara)

    def expect_change_by(self, key, *parts):
        self.expect_change(self.window, lambda: self.desktop.press(key), *parts)

    def until_wide(self, width):
        self.desktop.until(lambda: self.desktop.width(self.window) == width, f'a width of {width}')

    def test_charts_the_names_picked_by_keys(self):
        for key in ('Down', 'Down', 'End'):
            self.expect_change_by(key, CHART, LIST)
        self.quit(self.ondara, self.window)

    def test_charts_the_name_that_is_clicked(self):
        self.expect_chart(self.window)
        self.quit(self.ondara, self.window)

    def test_goes_to_the_quick_biorhythm_and_back(self):
        names = self.desktop.settled_picture(self.window, LOWER_NAMES)
        self.expect_change_by('ctrl+F1', LOWER_NAMES)
        self.desktop.press('ctrl+F1')
        self.desktop.until(lambda: self.desktop.picture(self.window, LOWER_NAMES) == names,
                           'the list of people')
        self.quit(self.ondara, self.window)

    def test_folds_and_unfolds(self):
        self.until_wide(605)
        self.desktop.press('ctrl+s')
        self.until_wide(247)
        self.desktop.press('ctrl+s')
        self.until_wide(605)
        self.quit(self.ondara, self.window)

    def test_is_not_closed_by_escape(self):
        self.desktop.press('Escape')
        self.expect_chart(self.window)
        self.quit(self.ondara, self.window)

    def test_ends_the_program_when_its_frame_closes_it(self):
        self.desktop.close_by_frame(self.window)
        self.expect_end(self.ondara)


class WorkingDirectory(SystemTestCase):
    def test_is_not_where_the_databases_are_sought(self):
        ondara = self.program.start(cwd='/')
        window = self.main_window(ondara)
        self.expect_chart(window)
        self.quit(ondara, window)


class ManyPeople(SystemTestCase):
    def test_are_listed_and_charted(self):
        self.program.run_sql('''
            WITH RECURSIVE Numbers (n) AS (
                SELECT 1 UNION ALL SELECT n + 1 FROM Numbers WHERE n < 100000)
            INSERT INTO Data (Name, FName, Birthdate, Gender, CatID)
                SELECT 'A' || (n * 7919 % 100000), 'Person', 10000 + n % 20000, 0, 1
                FROM Numbers''')
        ondara = self.program.start()
        window = self.main_window(ondara)
        self.expect_chart(window)
        self.quit(ondara, window)


if __name__ == '__main__':
    main()
