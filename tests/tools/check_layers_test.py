"""The check of the floors, on trees made for it."""

import unittest

from made_up_tree import MadeUpTree


class Includes(MadeUpTree):
    tool = 'check-layers'

    def include(self, path, *headers):
        self.write(path, ''.join(f'#include {header}\n' for header in headers))

    def test_a_room_may_include_itself_and_the_rooms_below(self):
        self.include('src/store/recordset.h', '"store/value.h"', '"runtime/text.h"',
                     '"cycles/date.h"', '<vector>', '<QString>', '<SQLiteCpp/Database.h>')
        self.include('src/shell/frmMain.cpp', '"ui_frmMain.h"', '"controls/chart.h"', '<QWidget>')
        self.include('src/cycles/date.h', '<compare>', '"cycles/integers.h"')
        self.expect_pass()

    def test_a_room_may_not_include_a_room_above(self):
        self.include('src/runtime/text.h', '<QString>', '"store/value.h"')
        self.expect_objection('src/runtime/text.h:2: runtime may not know store')

    def test_brackets_do_not_hide_a_room_above(self):
        self.include('src/cycles/date.h', '<runtime/text.h>')
        self.expect_objection('src/cycles/date.h:1: cycles may not know runtime')

    def test_the_rooms_of_forms_may_include_each_other(self):
        self.include('src/records/frmZoom.cpp', '"analyses/frmCompat.h"', '"import/frmImport.h"')
        self.include('src/reports/daily.cpp', '"analyses/frmCritical.h"', '"shell/frmMain.h"')
        self.expect_pass()

    def test_the_shell_may_not_include_a_form_that_it_opens(self):
        self.include('src/shell/frmMain.cpp', '"records/frmAdd.h"')
        self.expect_objection('src/shell/frmMain.cpp:1: shell may not know records')

    def test_the_files_of_no_room_stand_on_top(self):
        self.include('src/main.cpp', '"commands.h"', '"shell/start_up.h"', '"analyses/frmFind.h"')
        self.expect_pass()

    def test_no_room_may_include_the_files_on_top(self):
        self.include('src/records/frmAdd.cpp', '"commands.h"')
        self.expect_objection('src/records/frmAdd.cpp:1: "commands.h" is in no room')

    def test_a_folder_that_is_no_room_is_found(self):
        self.include('src/helpers/misc.h', '<vector>')
        self.expect_objection('src/helpers/misc.h:1: helpers is no room')

    def test_the_cycles_stand_on_the_standard_library_alone(self):
        for header in ('<QDate>', '<QtCore/QDate>', '<sqlite3.h>', '<sys/stat.h>'):
            with self.subTest(header):
                self.include('src/cycles/date.h', '<vector>', header)
                self.expect_objection(
                    'src/cycles/date.h:2: cycles stands on the standard library alone')

    def test_run_time_and_store_stand_on_qt_core(self):
        for room in ('runtime', 'store'):
            for header in ('<QWidget>', '<QColor>', '<QtGui/QColor>', '<QtWidgets>'):
                with self.subTest(room=room, header=header):
                    self.include(f'src/{room}/text.h', header)
                    self.expect_objection(
                        f'src/{room}/text.h:1: {room} stands on Qt Core and no other module of Qt')
            self.include(f'src/{room}/text.h', '<QString>', '<QtCore/QDate>', '<QtCore>')
            self.expect_pass()

    def test_sqlite_is_for_the_store_alone(self):
        self.include('src/controls/grid.cpp', '<SQLiteCpp/SQLiteCpp.h>')
        self.expect_objection('src/controls/grid.cpp:1: SQLite is for store alone')

    def test_an_include_in_a_comment_is_none(self):
        self.write('src/cycles/date.h', '// no:\n/*\n#include "shell/frmMain.h"\n*/\n')
        self.expect_pass()


class LinkLines(MadeUpTree):
    tool = 'check-layers'

    def link(self, room, links):
        self.write(f'src/{room}/CMakeLists.txt',
                   f'# A room.\nondara_room(\n  {room}\n  SOURCES a.cpp b.cpp\n  LINKS {links})\n')

    def test_a_room_may_link_the_rooms_below(self):
        self.link('store', 'runtime SQLiteCpp SQLite::SQLite3')
        self.link('shell', 'controls art')
        self.link('runtime', 'cycles Qt6::Core')
        self.expect_pass()

    def test_a_room_may_not_link_a_room_above(self):
        self.link('runtime', 'cycles controls')
        self.expect_objection('src/runtime/CMakeLists.txt:2: runtime may not link controls')

    def test_a_room_may_not_link_more_of_qt_than_its_floor_has(self):
        self.link('store', 'runtime Qt6::Widgets')
        self.expect_objection('src/store/CMakeLists.txt:2: store may not link Qt6::Widgets')
        self.link('store', 'runtime')
        self.link('cycles', 'Qt6::Core')
        self.expect_objection('src/cycles/CMakeLists.txt:2: cycles may not link Qt6::Core')

    def test_a_second_link_line_is_read_too(self):
        self.write('src/store/CMakeLists.txt', 'target_link_libraries(store PUBLIC shell)\n')
        self.expect_objection('src/store/CMakeLists.txt:1: store may not link shell')


if __name__ == '__main__':
    unittest.main()
