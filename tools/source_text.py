"""Reads C++ source for the checks: comments and literals told from code, places told in lines."""

import re
from pathlib import Path

_TOKEN = re.compile(
    r'''//[^\n]*|/\*.*?\*/|R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"'''
    r'''|"(?:\\.|[^"\\\n])*"|(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])*\'''',
    re.DOTALL)


def _blank(text):
    """The text with everything but its line ends made blank, so that places stay."""
    return re.sub(r'[^\n]', ' ', text)


def code_of(text):
    """The text with its comments and literals made blank."""
    return _TOKEN.sub(lambda token: _blank(token[0]), text)


def without_comments(text):
    """The text with its comments made blank."""
    return _TOKEN.sub(
        lambda token: _blank(token[0]) if token[0].startswith('/') else token[0], text)


def literals_of(text):
    """Every text literal, as (place, contents)."""
    for token in _TOKEN.finditer(text):
        if token[0].startswith('"'):
            yield token.start(), token[0][1:-1]
        elif token[0].startswith('R'):
            yield token.start(), token[0].partition('(')[2].rpartition(')')[0]


def line_of(text, place):
    return text.count('\n', 0, place) + 1


def sources(root):
    """Every C++ file under src/, in order."""
    return sorted(path for path in (Path(root) / 'src').rglob('*')
                  if path.suffix in ('.h', '.cpp'))
