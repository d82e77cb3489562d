"""Reports on a display, where the disk is full: what was there stays as it was."""

from system_test_case import ERROR_BOX, SystemTestCase, main

DEVICE = 'Format output for device ...'
REPORT = 'Daily Report'
SAVE = 'Save Report ...'
BELOW_VIEW = '150x60+50+60'  # where that menu of the main window opens
BELOW_REPORT = '100x40+60+50'  # and that of the report window


class ReportsOnAFullDisk(SystemTestCase):
    """Each case does what needs room, and expects the run-time's box and the end of the program."""

    def start(self, script):
        """Starts the program on a full disk, up to the report window. The script looks at the disk
        after the end of the program, and exits with 2 where it does not like what it finds."""
        self.ondara = self.program.start_in_a_mount(f'''
            mount -t tmpfs -o size=$((FOLDER_SIZE + 262144)) tmpfs "$HOME"
            cp -a "$FOLDER" "$HOME/Ondara"
            printf before > "$HOME/report.rtf"
            ! cat /dev/zero > "$HOME/full" 2>/dev/null
            status=0
            TMPDIR="$HOME" "$HOME/Ondara/ondara" || status=$?
            {script}
            exit "$status"''')
        window = self.main_window(self.ondara)
        self.expect_chart(window)
        self.expect_change(window, lambda: self.desktop.press('alt+v'), BELOW_VIEW)
        self.desktop.press('Down', 'Down', 'Return')
        self.desktop.window(DEVICE, self.ondara)
        self.desktop.press('Return')
        return self.desktop.window(REPORT, self.ondara)

    def expect_error(self):
        self.desktop.window(ERROR_BOX, self.ondara)
        self.desktop.press('Return')
        self.expect_end(self.ondara, 1)

    def test_leaves_an_old_file_as_it_was(self):
        self.start('''
            [ "$(cat "$HOME/report.rtf")" = before ] || exit 2
            [ -z "$(find "$HOME" -name 'report.rtf?*')" ] || exit 2''')
        self.desktop.press('space')
        self.desktop.window(SAVE, self.ondara)
        self.desktop.type(str(self.program.home / 'report.rtf'))
        self.desktop.press('Return')
        self.expect_error()

    def test_keeps_no_picture_of_a_report(self):
        window = self.start('''
            [ -z "$(find "$HOME" -name 'tempchart*')" ] || exit 2''')
        self.expect_change(window, lambda: self.desktop.press('alt+r'), BELOW_REPORT)
        self.desktop.press('Return')
        self.expect_error()


if __name__ == '__main__':
    main()
