"""Favourites on a display: kept in files beside the program, and found again after a new start."""

from system_test_case import CHART, ERROR_BOX, SystemTestCase, main

FAVOURITES_BUTTON = (151, 38)
BELOW_THE_BUTTON = '100x40+148+62'  # where its menu opens


class Favourites(SystemTestCase):
    def setUp(self):
        super().setUp()
        self.window = None

    def pick(self, entry):
        """The entry with this number, counted from 1, of the menu of favourites."""
        self.expect_change(
            self.window, lambda: self.desktop.click(self.window, *FAVOURITES_BUTTON),
            BELOW_THE_BUTTON)
        self.desktop.press(*['Down'] * entry, 'Return')

    def start(self):
        ondara = self.program.start()
        self.window = self.main_window(ondara)
        return ondara

    def files(self):
        return list(self.program.folder.glob('*.ofp'))

    def test_are_found_again_after_a_new_start(self):
        ondara = self.start()
        self.expect_chart(self.window)
        chosen = self.desktop.settled_picture(self.window, CHART)
        self.pick(1)
        self.desktop.until(self.files, 'the file of the favourite')
        self.quit(ondara, self.window)

        ondara = self.start()
        self.pick(3)
        self.desktop.until(lambda: self.desktop.picture(self.window, CHART) == chosen,
                           'the chart of the favourite')
        self.quit(ondara, self.window)

    def test_leave_nothing_half_written_on_a_full_disk(self):
        ondara = self.program.start_in_a_mount('''
            mount -t tmpfs -o size=$((FOLDER_SIZE + 262144)) tmpfs "$HOME"
            cp -a "$FOLDER" "$HOME/Ondara"
            ! cat /dev/zero > "$HOME/full" 2>/dev/null
            status=0
            TMPDIR="$HOME" "$HOME/Ondara/ondara" || status=$?
            [ -z "$(find "$HOME/Ondara" -name '*.ofp*')" ]
            exit "$status"''')
        self.window = self.main_window(ondara)
        self.expect_chart(self.window)
        self.pick(1)
        self.desktop.window(ERROR_BOX, ondara)
        self.desktop.press('Return')
        self.desktop.until(lambda: len(self.desktop.titles()) == 1, 'the end of the report')
        self.quit(ondara, self.window)


if __name__ == '__main__':
    main()
