"""Databases that the program cannot work with: it says so, ends, and leaves them as they were."""

import sqlite3

from program import contents
from system_test_case import ERROR_BOX, MAIN_WINDOW, SystemTestCase, main


class RefusalTestCase(SystemTestCase):
    def expect_refusal(self, start=None):
        """The run-time's box, then the end with code 1, and not a byte is changed."""
        before = contents(self.program.folder)
        run = start() if start else self.program.start()
        self.desktop.window(ERROR_BOX, run)
        self.assertNotIn(MAIN_WINDOW, self.desktop.titles())
        self.desktop.press('Return')
        self.expect_end(run, 1)
        self.assertEqual(contents(self.program.folder), before)


class BadDatabase(RefusalTestCase):
    def test_missing(self):
        self.program.people.unlink()
        self.expect_refusal()

    def test_empty(self):
        self.program.people.write_bytes(b'')
        self.expect_refusal()

    def test_of_another_kind(self):
        self.program.people.write_text('Smith, Anna; 20 October 1972\n' * 100, encoding='utf-8')
        self.expect_refusal()

    def test_cut_off(self):
        whole = self.program.people.read_bytes()
        self.program.people.write_bytes(whole[:len(whole) // 2])
        self.expect_refusal()

    def test_with_a_damaged_page(self):
        connection = sqlite3.connect(self.program.people)
        root, = connection.execute(
            "SELECT rootpage FROM sqlite_master WHERE name = 'Data'").fetchone()
        size, = connection.execute('PRAGMA page_size').fetchone()
        connection.close()
        content = bytearray(self.program.people.read_bytes())
        page = slice((root - 1) * size, root * size)
        content[page] = bytes(byte ^ 0xff for byte in content[page])
        self.program.people.write_bytes(content)
        self.expect_refusal()

    def test_that_is_a_folder(self):
        self.program.people.unlink()
        self.program.people.mkdir()
        self.expect_refusal()

    def test_locked_by_another_process(self):
        with self.program.locked():
            self.expect_refusal()

    def test_without_the_table_of_people(self):
        self.program.run_sql('DROP TABLE Data')
        self.expect_refusal()

    def test_without_the_table_of_categories(self):
        self.program.run_sql('DROP TABLE Category')
        self.expect_refusal()

    def test_with_nobody_in_it(self):
        self.program.run_sql('DELETE FROM Data')
        self.expect_refusal()

    def test_with_no_category_in_it(self):
        self.program.run_sql('DELETE FROM Category')
        self.expect_refusal()


class ProtectedDatabase(RefusalTestCase):
    """One that can only be read is refused as well: the program works on what it may change."""

    def test_without_the_permission_to_write(self):
        self.program.people.chmod(0o444)
        self.expect_refusal(self.program.start_as_ordinary_user)

    def test_in_a_folder_without_the_permission_to_write(self):
        self.program.people.chmod(0o666)
        self.program.folder.chmod(0o555)
        self.addCleanup(self.program.folder.chmod, 0o755)
        self.expect_refusal(self.program.start_as_ordinary_user)

    def test_on_a_read_only_medium(self):
        self.expect_refusal(lambda: self.program.start_in_a_mount('''
            mount --bind "$FOLDER" "$FOLDER"
            mount -o remount,bind,ro "$FOLDER"
            exec "$FOLDER/ondara"'''))


class OldDatabase(RefusalTestCase):
    """One that cannot be adopted."""

    def setUp(self):
        super().setUp()
        self.program.make_old_database()

    def test_of_old_cut_off(self):
        self.program.people.write_bytes(self.program.people.read_bytes()[:-4096])
        self.expect_refusal()

    def test_of_old_without_the_permission_to_write(self):
        self.program.people.chmod(0o444)
        self.expect_refusal(self.program.start_as_ordinary_user)

    def test_of_old_in_a_folder_without_the_permission_to_write(self):
        self.program.people.chmod(0o666)
        self.program.folder.chmod(0o555)
        self.addCleanup(self.program.folder.chmod, 0o755)
        self.expect_refusal(self.program.start_as_ordinary_user)


class FullDisk(SystemTestCase):
    def test_is_no_matter_as_nothing_is_written(self):
        before = contents(self.program.folder)
        run = self.program.start_in_a_mount('''
            mount -t tmpfs -o size=$((FOLDER_SIZE + 262144)) tmpfs "$HOME"
            cp -a "$FOLDER" "$HOME/Ondara"
            ! cat /dev/zero > "$HOME/full" 2>/dev/null
            status=0
            TMPDIR="$HOME" "$HOME/Ondara/ondara" || status=$?
            cmp "$FOLDER/Ondara2.mdb" "$HOME/Ondara/Ondara2.mdb"
            [ -z "$(find "$HOME/Ondara" -name '*-journal')" ]
            exit "$status"''')
        window = self.main_window(run)
        self.expect_chart(window)
        self.quit(run, window)
        self.assertEqual(contents(self.program.folder), before)


if __name__ == '__main__':
    main()
