"""Reports on paper, by a real print queue."""

import re
import subprocess

from print_queue import PrintQueue
from system_test_case import ERROR_BOX, SystemTestCase, main

DEVICE = 'Format output for device ...'
PRINTER_QUESTION = 'Printer communication'
REPORT = 'Daily Report'
CHOICES = '100x60+0+0'
BUTTONS = 44  # pixels from the top of the report window
INCH = 72  # points
A4 = (595, 842)

# The ways to the entries of the menu of reports.
OVERVIEW = ['Up']
MONTHLY = ['Up', 'Up']
DAILY = ['Up', 'Up', 'Up']


class Printing(SystemTestCase):
    def setUp(self):
        super().setUp()
        self.queue = PrintQueue()
        self.addCleanup(self.queue.remove)

    def start(self):
        self.ondara = self.program.start(before=['env', self.queue.server])
        self.window = self.main_window(self.ondara)
        self.expect_chart(self.window)

    def ask_for_reports(self):
        """Opens the question for the device."""
        self.desktop.press('alt+v')
        self.desktop.press('Up', 'Up', 'Return')
        return self.desktop.window(DEVICE, self.ondara)

    def open_reports(self):
        self.ask_for_reports()
        self.desktop.press('Return')
        return self.desktop.window(REPORT, self.ondara)

    def choose_report(self, *steps):
        self.desktop.press('alt+r')
        self.desktop.press(*steps, 'Return')

    def print_report(self, window):
        self.desktop.click(window, self.desktop.width(window) // 2, BUTTONS)

    def printed(self, *command):
        """What a program says of the paper, once it is there."""
        self.desktop.until(self.is_printed, 'the paper')
        return subprocess.check_output([*command, self.queue.printed, '-'], text=True)

    def is_printed(self):
        path = self.queue.printed
        return path.exists() and path.read_bytes().rstrip().endswith(b'%%EOF')

    def words(self):
        """The words on the paper, each with its place: left, top, right, bottom."""
        word = re.compile(r'<word xMin="(.*)" yMin="(.*)" xMax="(.*)" yMax="(.*)">(.*)</word>')
        return [(text, [float(length) for length in place])
                for *place, text in word.findall(self.printed('pdftotext', '-bbox'))]

    def close_reports(self, window):
        self.desktop.close_by_frame(window)
        self.quit(self.ondara, self.window)

    def test_keeps_an_inch_from_every_edge(self):
        self.queue.add_printer()
        self.start()
        report = self.open_reports()
        self.choose_report(*DAILY)
        self.print_report(report)
        words = self.words()
        self.assertEqual([text for text, _ in words][:3], ['Daily', 'Report', 'for'])
        edges = [edge(place) for edge, place in
                 zip((min, min, max, max), zip(*(place for _, place in words)))]
        self.assertAlmostEqual(edges[0], INCH, delta=2)
        self.assertAlmostEqual(edges[1], INCH, delta=6)
        self.assertLessEqual(edges[2], A4[0] - INCH)
        self.assertLessEqual(edges[3], A4[1] - INCH)
        self.close_reports(report)

    def test_brings_the_chart(self):
        self.queue.add_printer()
        self.start()
        report = self.open_reports()
        self.choose_report(*MONTHLY)
        self.print_report(report)
        self.assertIn('Monthly Chart for', self.printed('pdftotext'))
        pictures = subprocess.check_output(['pdfimages', '-list', self.queue.printed], text=True)
        self.assertRegex(pictures, r' 1428 +853 ')
        self.close_reports(report)

    def test_goes_on_over_pages(self):
        self.program.run_sql('''
            WITH RECURSIVE Numbers (n) AS (
                SELECT 1 UNION ALL SELECT n + 1 FROM Numbers WHERE n < 100)
            INSERT INTO Data (Name, FName, Birthdate, Gender, CatID)
                SELECT 'Person', 'Number' || n, 10000, 0, 1 FROM Numbers''')
        self.queue.add_printer()
        self.start()
        report = self.open_reports()
        self.choose_report(*OVERVIEW)
        self.print_report(report)
        pages = self.printed('pdftotext').split('\f')
        self.assertGreater(len(pages), 5)
        for number in range(1, 101):
            self.assertEqual(sum(f'Number{number} Person' in page for page in pages), 1, number)
        self.close_reports(report)

    def test_sets_the_width_of_the_window(self):
        self.queue.add_printer()
        self.start()
        device = self.ask_for_reports()
        self.expect_change(device, lambda: self.desktop.press('alt+p'), CHOICES)
        self.desktop.settled_picture(device, CHOICES)
        self.desktop.press('Return')
        self.desktop.window(PRINTER_QUESTION, self.ondara)
        self.desktop.press('alt+y')
        report = self.desktop.window(REPORT, self.ondara)
        self.assertAlmostEqual(self.desktop.width(report), (A4[0] - 2 * INCH + 10) * 96 / 72,
                               delta=1)
        self.assertFalse(self.queue.printed.exists())
        self.close_reports(report)

    def test_ends_the_program_without_a_printer(self):
        self.start()
        report = self.open_reports()
        self.print_report(report)
        self.desktop.window(ERROR_BOX, self.ondara)
        self.desktop.press('Return')
        self.expect_end(self.ondara, 1)


if __name__ == '__main__':
    main()
