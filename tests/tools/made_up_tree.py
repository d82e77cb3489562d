"""A small source tree made for one test of a check."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parents[2] / 'tools'


class MadeUpTree(unittest.TestCase):
    """A test case with a folder of its own; `tool` names the check that it runs there."""

    tool = ''

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        (self.root / 'src').mkdir()

    def write(self, path, text):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding='utf-8')

    def run_check(self):
        return subprocess.run([sys.executable, '-B', TOOLS / self.tool, self.root],
                              capture_output=True, text=True, check=False)

    def expect_pass(self):
        check = self.run_check()
        self.assertEqual((check.returncode, check.stdout, check.stderr), (0, '', ''))

    def expect_objection(self, objection):
        """The check fails, and this is the one thing it says."""
        check = self.run_check()
        self.assertEqual((check.returncode, check.stdout.splitlines(), check.stderr),
                         (1, [objection], ''))
