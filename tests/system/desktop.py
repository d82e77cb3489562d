"""A desktop for one test: a virtual display with a window manager, its windows, keys and mouse."""

import os
import signal
import subprocess
import time
from pathlib import Path

PATIENCE = 60  # seconds; never waited out unless something is wrong
GLANCE = 0.05  # seconds between two looks

# A process that ends with this one, however this one ends.
WITH_US = ['setpriv', '--pdeathsig', 'KILL']


def looks_until(condition):
    """Looks again and again until the condition holds, and answers what it answered; the last
    answer where patience ends."""
    end = time.monotonic() + PATIENCE
    while not (answer := condition()) and time.monotonic() < end:
        time.sleep(GLANCE)
    return answer


class Desktop:
    def __init__(self, case):
        self._case = case
        # Without -noreset the server throws everybody out when its only client leaves, as the first
        # look for the window manager may do.
        number, written = os.pipe()
        self._server = subprocess.Popen(
            [*WITH_US, 'Xvfb', '-displayfd', str(written), '-screen', '0', '1280x1024x24',
             '-nolisten', 'tcp', '-noreset', '-ac'], pass_fds=[written], stderr=subprocess.DEVNULL)
        os.close(written)
        with os.fdopen(number) as display:
            self.name = f':{display.readline().strip()}'
        self._environment = dict(os.environ, DISPLAY=self.name)
        self._manager = subprocess.Popen(
            [*WITH_US, 'openbox'], env=self._environment, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        self.until(lambda: 'window id' in self._ask('xprop', '-root', '_NET_SUPPORTING_WM_CHECK'),
                   'the window manager')

    def close(self):
        for process in (self._manager, self._server):
            process.send_signal(signal.SIGTERM)
            process.wait()

    def until(self, condition, what):
        """Waits for a condition and answers what it answered. Where it never holds, the test fails
        and leaves a picture of the screen."""
        def look():
            self._wake_manager()
            return condition()
        answer = looks_until(look)
        if not answer:
            picture = Path.cwd() / f'{self._case}.png'
            self._ask('import', '-window', 'root', str(picture))
            raise AssertionError(f'Waited in vain for {what}, among the windows {self.titles()}. '
                                 f'A picture of the screen: {picture}')
        return answer

    def _wake_manager(self):
        """Now and then the window manager sleeps on events that it has fetched and not yet looked
        at, until another one comes. A property of the root window is another one."""
        self._ask('xprop', '-root', '-f', 'WAKE', '8s', '-set', 'WAKE', '')

    def _ask(self, *command):
        """What a tool answers; nothing where it finds that a window has gone meanwhile."""
        return subprocess.run(command, env=self._environment, check=False, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout

    def _do(self, *command):
        subprocess.run(command, env=self._environment, check=True)

    def windows(self):
        """The windows that the window manager knows, oldest first, as (title, window)."""
        listed = self._ask('xprop', '-root', '_NET_CLIENT_LIST').partition('#')[2]
        ids = [window.strip() for window in listed.split(',') if window.strip()]
        return [(self._ask('xdotool', 'getwindowname', window).strip(), window) for window in ids]

    def titles(self):
        return [title for title, _ in self.windows()]

    def has_focus(self, window):
        active = self._ask('xprop', '-root', '_NET_ACTIVE_WINDOW').partition('#')[2].strip()
        return active == window

    def window(self, title, owner):
        """The newest window of this title, once it is there and takes the keys; its owner is the
        process that is to show it."""
        def look():
            if owner.poll() is not None:
                raise AssertionError(f'The program ended with code {owner.returncode} and did not '
                                     f'show "{title}"')
            named = [window for name, window in self.windows() if name == title]
            return named and self.has_focus(named[-1]) and named[-1]
        return self.until(look, f'a window called "{title}" to take the keys')

    def raise_window(self, window):
        self._do('xdotool', 'windowactivate', window)
        self.until(lambda: self.has_focus(window), 'a window to take the keys')

    def width(self, window):
        answer = self._ask('xdotool', 'getwindowgeometry', '--shell', window)
        return int(dict(line.split('=') for line in answer.split())['WIDTH'])

    def press(self, *keys):
        self._do('xdotool', 'key', *keys)

    def type(self, text):
        self._do('xdotool', 'type', text)

    def close_by_frame(self, window):
        self.raise_window(window)
        self.press('alt+F4')

    def click(self, window, x, y):
        self._do('xdotool', 'mousemove', '--window', window, str(x), str(y), 'click', '1')

    def picture(self, window, part):
        """The pixels of a part of a window, a geometry like 100x50+8+8."""
        return subprocess.run(['import', '-window', window, '-crop', part, '-depth', '8', 'rgb:-'],
                              env=self._environment, check=False, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL).stdout

    def settled_picture(self, window, part):
        """The pixels, once they have come to rest."""
        looks = [b'', self.picture(window, part)]

        def at_rest():
            looks.append(self.picture(window, part))
            return looks[-1] and looks[-1] == looks[-2] == looks[-3]
        self.until(at_rest, f'{part} to come to rest')
        return looks[-1]

    def until_changed(self, window, part, before):
        self.until(lambda: self.picture(window, part) not in (b'', before), f'{part} to change')
