"""A queue of a print system of its own, with a printer that keeps what it is given."""

import grp
import os
import pwd
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from desktop import WITH_US, looks_until
from program import AS_NOBODY, NOBODY, require

SCHEDULER = '/usr/sbin/cupsd'

# A4, of which the printer leaves out a quarter of an inch at the left and three eighths below. What
# it gets is copied.
PAPER = '''*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "PAPER.PPD"
*Manufacturer: "Paper"
*Product: "(Paper)"
*ModelName: "Paper"
*ShortNickName: "Paper"
*NickName: "Paper"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*cupsFilter2: "application/pdf printer/paper 0 gziptoany"
*OpenUI *PageSize: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A4
*PageSize A4: ""
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: A4
*PageRegion A4: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4: "18 27 577 815"
*DefaultPaperDimension: A4
*PaperDimension A4: "595 842"
'''

FOR_EVERYBODY = '''Listen {folder}/socket
DefaultAuthType None
WebInterface No
Browsing No
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
'''

IN_ITS_FOLDER = '''FileDevice Yes
ServerRoot {folder}/server
RequestRoot {folder}/spool
TempDir {folder}/spool/tmp
CacheDir {folder}/cache
StateDir {folder}/state
AccessLog {folder}/access
ErrorLog {folder}/error
PageLog {folder}/page
User {user}
Group {group}
SystemGroup {group}
'''


class PrintQueue:
    """The scheduler refuses to run as root: where the tester is root, nobody runs it."""

    def __init__(self):
        if not Path(SCHEDULER).exists():
            raise unittest.SkipTest('there is no print system here: cupsd is missing')
        as_user = []
        if os.geteuid() == 0:
            require(AS_NOBODY, 'another user')
            as_user = AS_NOBODY
        self._folder = tempfile.TemporaryDirectory(prefix='ondara-queue-')
        self._base = Path(self._folder.name)
        self.printed = self._base / 'out' / 'printed.pdf'
        self._lay_out()
        self._scheduler = subprocess.Popen(
            [*as_user, *WITH_US, SCHEDULER, '-f', '-c', self._base / 'cupsd.conf', '-s',
             self._base / 'cups-files.conf'])
        self.server = f'CUPS_SERVER={self._base}/socket'
        assert looks_until((self._base / 'socket').exists), 'Waited in vain for the print system.'

    def _lay_out(self):
        for name in ('server/ppd', 'spool/tmp', 'cache', 'state', 'out'):
            (self._base / name).mkdir(parents=True)
        is_root = os.geteuid() == 0
        user = pwd.getpwuid(NOBODY if is_root else os.geteuid())
        names = {'folder': self._base, 'user': user.pw_name,
                 'group': grp.getgrgid(user.pw_gid).gr_name}
        (self._base / 'cupsd.conf').write_text(FOR_EVERYBODY.format(**names), encoding='utf-8')
        (self._base / 'cups-files.conf').write_text(IN_ITS_FOLDER.format(**names), encoding='utf-8')
        (self._base / 'paper.ppd').write_text(PAPER, encoding='utf-8')
        if is_root:
            for path in (self._base, *self._base.rglob('*')):
                shutil.chown(path, user.pw_uid, user.pw_gid)
            self._base.chmod(0o755)

    def add_printer(self):
        """The only printer, and so the default one."""
        for options in (['-p', 'paper', '-E', '-v', f'file://{self.printed}', '-P',
                         self._base / 'paper.ppd'], ['-d', 'paper']):
            subprocess.run(['env', self.server, '/usr/sbin/lpadmin', *options], check=True,
                           stderr=subprocess.DEVNULL)

    def remove(self):
        self._scheduler.terminate()
        self._scheduler.wait()
        self._folder.cleanup()
