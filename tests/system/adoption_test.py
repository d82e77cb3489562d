"""An old database beside the program: its people are there after the start, and it is kept."""

import sqlite3

from program import contents
from system_test_case import ERROR_BOX, SystemTestCase, main

LEFT_OUT_BOX = 'Ondara'


class Adoption(SystemTestCase):
    def setUp(self):
        super().setUp()
        self.program.make_old_database()
        self.old = self.program.people.read_bytes()

    def names(self):
        connection = sqlite3.connect(self.program.people)
        rows = connection.execute('SELECT NameID, Name FROM Data').fetchall()
        connection.close()
        return rows

    def test_takes_place_at_the_first_start_alone(self):
        run = self.program.start()
        self.desktop.window(LEFT_OUT_BOX, run)
        self.desktop.press('Return')
        self.quit(run, self.main_window(run))
        self.assertEqual(self.names(), [(1, 'Adler')])
        self.assertEqual((self.program.folder / 'Ondara2 (Jet).mdb').read_bytes(), self.old)
        self.assertIn(b'Name: Berg\r\n',
                      (self.program.folder / 'Ondara2 (left out).txt').read_bytes())

        before = contents(self.program.folder)
        run = self.program.start()
        self.quit(run, self.main_window(run))
        self.assertEqual(contents(self.program.folder), before)

    def test_on_a_full_disk_leaves_everything_as_it_was(self):
        run = self.program.start_in_a_mount('''
            mount -t tmpfs -o size=$((FOLDER_SIZE + 262144)) tmpfs "$HOME"
            cp -a "$FOLDER" "$HOME/Ondara"
            ! cat /dev/zero > "$HOME/full" 2>/dev/null
            ls "$HOME/Ondara" > "$TMPDIR/before"
            status=0
            TMPDIR="$HOME" "$HOME/Ondara/ondara" || status=$?
            cmp "$FOLDER/Ondara2.mdb" "$HOME/Ondara/Ondara2.mdb" || exit 2
            ls "$HOME/Ondara" | cmp - "$TMPDIR/before" || exit 2
            exit "$status"''')
        self.desktop.window(ERROR_BOX, run)
        self.desktop.press('Return')
        self.expect_end(run, 1)


if __name__ == '__main__':
    main()
