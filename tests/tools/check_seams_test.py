"""The check of the seams, on trees made for it."""

import subprocess
import unittest

from made_up_tree import MadeUpTree


class Seams(MadeUpTree):
    tool = 'check-seams'

    def write_tested(self, stem, text, suffix='.cpp'):
        """A source file, and the test that it must have."""
        self.write(f'src/{stem}{suffix}', text)
        self.write(f'tests/{stem}_test.cpp', '')

    def test_the_desktop_is_for_the_hosts_alone(self):
        for use in ('QMessageBox', 'QFileDialog', 'QPrinter', 'QPrinterInfo', 'QPrintDialog',
                    'QDate::currentDate', 'QDateTime::currentDateTime',
                    'QDateTime::currentDateTimeUtc', 'QTime::currentTime', 'QLocale::system',
                    'processEvents'):
            with self.subTest(use):
                self.write_tested('shell/frmMain', f'// Shows.\nvoid f() {{ {use}(); }}\n')
                self.expect_objection(f'src/shell/frmMain.cpp:2: {use} is for the hosts alone')

    def test_the_hosts_may_ask_the_desktop(self):
        self.write_tested('runtime/machine_host', 'auto d = QDate::currentDate();\n')
        self.write('src/runtime/host_linux.cpp', 'auto l = QLocale::system();\n')
        self.write_tested('controls/desktop_host', 'QMessageBox box;\n')
        self.expect_pass()

    def test_a_comment_or_a_text_asks_nobody(self):
        self.write_tested('shell/frmMain', '// No QMessageBox here.\nauto t = "QPrinter";\n')
        self.expect_pass()

    def test_nothing_configures_the_program(self):
        for use in ('getenv', 'qgetenv', 'qEnvironmentVariableIsSet', 'QSettings',
                    'QCommandLineParser', 'QCoreApplication::arguments'):
            with self.subTest(use):
                self.write_tested('runtime/app', f'// No {use}.\nauto x = {use}();\n')
                self.expect_objection(
                    f'src/runtime/app.cpp:2: {use}: nothing configures the program')

    def test_sql_is_for_the_store_alone(self):
        for sql in ('SELECT Name FROM Data', 'select * from Data', 'DELETE FROM Data',
                    'INSERT INTO Data', 'UPDATE Data SET CatID', ' ORDER BY Name',
                    'x FROM Data WHERE ', 'PRAGMA foreign_keys', 'select CatID,Category from C'):
            with self.subTest(sql):
                self.write_tested('shell/frmMain', f'\nauto sql = "{sql} ";\n')
                self.expect_objection('src/shell/frmMain.cpp:2: SQL is for store/ and data/ alone')
        self.write_tested('shell/frmMain', 'auto sql = R"(\n  SELECT Name)";')
        self.expect_objection('src/shell/frmMain.cpp:1: SQL is for store/ and data/ alone')

    def test_the_store_speaks_sql_and_a_message_is_none(self):
        self.write_tested('store/statements', 'auto sql = "SELECT Name FROM Data";\n')
        self.write_tested('shell/frmMain', 'auto text = "Select a person from the list";\n')
        self.expect_pass()

    def test_connections_by_text_are_found(self):
        self.write_tested('controls/form', 'f(a, SIGNAL(b()));\n')
        self.expect_objection('src/controls/form.cpp:1: a connection by text (SIGNAL); '
                              'connect by function pointer')

    def test_a_form_connects_its_event_routines_by_on_event(self):
        objection = ':1: a form connects its event routines by onEvent'
        for room in ('shell', 'records', 'analyses', 'reports', 'import'):
            for connection in ('QObject::connect(a, &A::b, this, &frmMain::a_Click);\n',
                               'connect(a, &A::b,\n    this, [this] { a_Click(); });\n'):
                with self.subTest(room=room, connection=connection):
                    self.write_tested(f'{room}/frmMain', connection)
                    self.expect_objection(f'src/{room}/frmMain.cpp{objection}')
                    self.write_tested(f'{room}/frmMain', '')
        self.write('src/commands.cpp', 'connect(a, &A::b, this, &frmMain::a_Click);\n')
        self.expect_objection(f'src/commands.cpp{objection}')

    def test_a_connection_to_qt_is_no_event_routine(self):
        self.write_tested('shell/frmMain', 'connect(a, &A::b, c, &QObject::deleteLater);\n'
                                           'disconnect(a);\n'
                                           'onEvent(a, &A::b, this, &frmMain::a_Click);\n')
        self.write_tested('controls/list', 'connect(a, &A::b, this, &ListBox::Click);\n')
        self.expect_pass()

    def test_every_file_of_a_room_has_a_test(self):
        self.write('src/store/value.h', '')
        self.write('src/store/value.cpp', '')
        self.write('src/main.cpp', '')
        self.expect_objection('src/store/value.h:1: no test at tests/store/value_test.cpp')

    def test_a_folder_in_a_room_is_mirrored_too(self):
        self.write('src/store/jet/page.cpp', '')
        self.expect_objection('src/store/jet/page.cpp:1: no test at tests/store/jet/page_test.cpp')

    def test_an_exemption_that_is_no_longer_needed_is_found(self):
        self.write_tested('runtime/message', '', '.h')
        self.expect_objection('tests/runtime/message_test.cpp:1: runtime/message is tested, '
                              'and exempt from it in check-seams')


class Texts(MadeUpTree):
    tool = 'check-seams'

    def test_tabs_and_blanks_at_the_end_of_a_line_are_found(self):
        self.write('README.md', 'one\n\ttwo\n')
        self.expect_objection('README.md:2: a tab')
        self.write('README.md', 'one \ntwo\n')
        self.expect_objection('README.md:1: blanks at the end of a line')
        self.write('README.md', 'one\ntwo ')
        self.expect_objection('README.md:2: blanks at the end of a line')

    def test_work_left_open_is_found(self):
        for mark in ('TO' 'DO', 'FIX' 'ME'):
            with self.subTest(mark):
                self.write('docs/plan.md', f'one\n{mark}: two\n')
                self.expect_objection(f'docs/plan.md:2: {mark}: work left open')

    def test_a_picture_is_no_text(self):
        (self.root / 'a.png').write_bytes(b'\x89PNG\0\t \n')
        self.expect_pass()

    def test_what_git_ignores_is_nobodys_business(self):
        subprocess.run(['git', 'init', '-q', self.root], check=True)
        self.write('.gitignore', '/build/\n')
        self.write('build/made.txt', '\t\n')
        self.expect_pass()
        self.write('new.txt', '\tnew\n')
        self.expect_objection('new.txt:1: a tab')


if __name__ == '__main__':
    unittest.main()
