"""A program directory of its own for a test, a home for its user, and starts of the program."""

import contextlib
import hashlib
import os
import shutil
import sqlite3
import subprocess
import tempfile
import unittest
from pathlib import Path

NOBODY = 65534
WITH_MOUNTS = ['unshare', '--user', '--map-root-user', '--mount']
AS_NOBODY = ['setpriv', f'--reuid={NOBODY}', f'--regid={NOBODY}', '--clear-groups']


def require(command, what):
    """Skips the case, and says why, where this machine does not let a command be run like that."""
    probe = subprocess.run([*command, 'true'], check=False, capture_output=True, text=True)
    if probe.returncode != 0:
        raise unittest.SkipTest(f'{what} is not to be had here: {probe.stderr.strip()}')


def contents(folder):
    """Everything in a folder: the kind, the permissions and the bytes of each file by its path."""
    def state(path):
        permissions = oct(path.lstat().st_mode)
        return permissions, '' if path.is_dir() else hashlib.sha256(path.read_bytes()).hexdigest()
    return {str(path.relative_to(folder)): state(path) for path in sorted(folder.rglob('*'))}


class Program:
    """The built program in a folder of its own: another file than any other test's, so that no
    test's program is another instance for it."""

    def __init__(self, display):
        self._folder = tempfile.TemporaryDirectory(prefix='ondara-test-')
        base = Path(self._folder.name)
        base.chmod(0o755)
        self.home = base / 'home'
        self.runtime = base / 'runtime'
        for folder in (self.home, self.runtime):
            folder.mkdir(mode=0o700)
        self.folder = self.lay_out(base / 'Ondara')
        self.file = self.folder / 'ondara'
        self.people = self.folder / 'Ondara2.mdb'
        self._display = display
        self._runs = []

    @staticmethod
    def lay_out(folder):
        """The program and the databases as they are shipped, in a new folder."""
        folder.mkdir()
        shutil.copy2(os.environ['ONDARA_PROGRAM'], folder / 'ondara')
        for database in ('Ondara2.mdb', 'Interp.mdb'):
            shutil.copyfile(Path(os.environ['ONDARA_SHIPPED'], database), folder / database)
        return folder

    def remove(self):
        for run in self._runs:
            run.kill()
            run.wait()
        self._folder.cleanup()

    def environment(self):
        """Nothing of the tester's desktop; only what the sanitizers are told."""
        kept = {name: value for name, value in os.environ.items() if name.endswith('SAN_OPTIONS')}
        return kept | {'DISPLAY': self._display, 'HOME': str(self.home), 'PATH': os.environ['PATH'],
                       'LC_ALL': 'C.UTF-8', 'TMPDIR': str(self.runtime),
                       'XDG_RUNTIME_DIR': str(self.runtime)}

    def start(self, *options, file=None, before=(), cwd=None):
        """Starts the program; `before` is a command that starts it in its turn."""
        run = subprocess.Popen([*before, file or self.file, *options], env=self.environment(),
                               cwd=cwd or self.folder)
        self._runs.append(run)
        return run

    def start_as_ordinary_user(self):
        """Permissions do not bind root: where the tester is root, somebody else starts it."""
        if os.geteuid() != 0:
            return self.start()
        require(AS_NOBODY, 'another user')
        for folder in (self.home, self.runtime):
            shutil.chown(folder, NOBODY, NOBODY)
        return self.start(before=AS_NOBODY)

    def start_in_a_mount(self, script):
        """Starts the program from a script that may mount what only it sees."""
        require(WITH_MOUNTS, 'a mount')
        size = sum(path.stat().st_size for path in self.folder.iterdir())
        places = [f'FOLDER={self.folder}', f'FOLDER_SIZE={size}']
        return self.start('-euc', script, file='sh', before=['env', *places, *WITH_MOUNTS])

    @contextlib.contextmanager
    def locked(self):
        """Another process has the person database for itself. (It could not be this one: it would
        give up its lock with any reading of the file.)"""
        with subprocess.Popen(['sqlite3', self.people], stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE, text=True) as other:
            other.stdin.write("BEGIN EXCLUSIVE; SELECT 'locked';\n")
            other.stdin.flush()
            assert other.stdout.readline() == 'locked\n'
            yield

    def make_old_database(self):
        """Puts one of old in the place of the person database: Adler, and Berg without a birth
        date."""
        subprocess.run([os.environ['ONDARA_OLD_DATABASE'], self.people], check=True)

    def run_sql(self, *statements):
        """Changes the person database."""
        connection = sqlite3.connect(self.people)
        with connection:
            for statement in statements:
                connection.execute(statement)
        connection.close()
