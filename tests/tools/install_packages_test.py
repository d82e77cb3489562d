"""The installer of packages, among stand-ins for the tools of the system."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parents[2] / 'tools'

APT_GET = '''
case "$*" in
*--simulate*) [ -e "$SYSTEM/lists" ]; exit ;;
update*) touch "$SYSTEM/lists" ;;
*) [ -e "$SYSTEM/lists" ] && [ -e "$SYSTEM/archive" ] || { touch "$SYSTEM/archive"; rc=1; } ;;
esac
echo "apt-get $*" >> "$SYSTEM/log"
exit ${rc:-0}
'''


class InstallPackages(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.system = Path(folder.name)
        (self.system / 'tools').mkdir()
        shutil.copy(TOOLS / 'install-packages', self.system / 'tools')
        (self.system / 'tools/debian-packages').write_text('# For the build\ncmake\n\ng++\n')
        (self.system / 'bin').mkdir()
        for tool in ('dirname', 'env', 'grep', 'sed', 'sh', 'touch'):
            os.symlink(shutil.which(tool), self.system / 'bin' / tool)
        self.stand_in('apt-get', APT_GET)
        self.become(0)
        for state in ('lists', 'archive'):
            (self.system / state).touch()

    def stand_in(self, tool, script):
        path = self.system / 'bin' / tool
        path.write_text(f'#!/bin/sh\n{script}')
        path.chmod(0o755)

    def become(self, user):
        self.stand_in('id', f'echo {user}\n')

    def installed(self, *packages):
        lines = ''.join(f'echo "{package} installed"\n' for package in packages)
        self.stand_in('dpkg-query', f'{lines}echo "x11-utils config-files"\nexit 1\n')

    def run_installer(self, *lists):
        return subprocess.run(
            [self.system / 'tools/install-packages', *lists], capture_output=True, text=True, check=False,
            env={'PATH': str(self.system / 'bin'), 'SYSTEM': str(self.system)})

    def log(self):
        log = self.system / 'log'
        return log.read_text().splitlines() if log.exists() else []

    def expect_installed(self, *steps, lists=()):
        self.assertEqual(self.run_installer(*lists).returncode, 0)
        self.assertEqual([step.replace('-y -qq --no-install-recommends ', '').removesuffix(' -qq')
                          for step in self.log()], list(steps))

    def test_says_and_does_nothing_when_nothing_is_missing(self):
        self.installed('cmake', 'g++')
        run = self.run_installer()
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, '', ''))
        self.assertEqual(self.log(), [])

    def test_installs_what_is_missing_and_nothing_else(self):
        self.installed('cmake')
        self.expect_installed('apt-get install g++')

    def test_installs_what_is_in_the_lists_that_are_named(self):
        (self.system / 'tools/more').write_text('wine\n')
        self.installed('g++')
        self.expect_installed('apt-get install cmake wine', lists=('debian-packages', 'more'))

    def test_takes_a_package_whose_files_are_gone_for_missing(self):
        self.stand_in('dpkg-query', 'echo "cmake config-files"\necho "g++ installed"\n')
        self.expect_installed('apt-get install cmake')

    def test_fetches_the_lists_when_there_are_none(self):
        (self.system / 'lists').unlink()
        self.installed('cmake')
        self.expect_installed('apt-get update', 'apt-get install g++')

    def test_fetches_the_lists_anew_when_they_are_too_old(self):
        (self.system / 'archive').unlink()
        self.installed('cmake')
        self.expect_installed('apt-get install g++', 'apt-get update', 'apt-get install g++')

    def test_asks_sudo_when_it_is_not_root(self):
        self.become(1000)
        self.stand_in('sudo', 'echo "sudo $1" >> "$SYSTEM/log"\nexec "$@"\n')
        self.installed('cmake')
        self.expect_installed('sudo env', 'apt-get install g++')

    def test_says_what_to_do_where_there_is_neither_root_nor_sudo(self):
        self.become(1000)
        self.installed('cmake')
        run = self.run_installer()
        self.assertEqual(run.returncode, 1)
        self.assertIn('apt-get install --no-install-recommends g++', run.stderr)
        self.assertEqual(self.log(), [])

    def test_says_what_is_needed_where_there_is_no_apt(self):
        (self.system / 'bin/apt-get').unlink()
        self.installed()
        run = self.run_installer()
        self.assertEqual(run.returncode, 1)
        self.assertIn('cmake g++', run.stderr)


if __name__ == '__main__':
    unittest.main()
