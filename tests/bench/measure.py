"""Measures what tools/bench has built, and prints one table.

usage: measure.py PROGRAMS SCHEMA INTERPRETATIONS

Makes a program directory for each number of people, starts Ondara there in turn with an empty
window, and runs the routines of the main window and of the forms over it. Every figure is a median.
A ratio of starts is that of neighbours in one round, so it holds while the machine is busy with
something else.
"""

import json
import math
import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PEOPLE = [10, 1_000, 100_000]
ROUNDS = 25
REPETITIONS = 15

# The aims: at most so many times the empty window, at most so many milliseconds.
PAINTED_AIM = {10: 1.8, 1_000: 1.8, 100_000: 3}
MEMORY_AIM = {10: 1.5, 1_000: 1.5, 100_000: 3}
LISTED_AIM = {100_000: 120}
CLICKED_AIM = {people: 8 for people in PEOPLE}
BIRTHDAY_AIM = {people: 30 for people in PEOPLE}
COMPARED_AIM = {people: 10 for people in PEOPLE}
CARD_AIM = {people: 8 for people in PEOPLE}
STEP_AIM = {people: 2 for people in PEOPLE}
ANALYSED_AIM = {people: 0.02 for people in PEOPLE}
CHANGED_AIM = {people: 10 for people in PEOPLE}
UPDATE_AIM = {people: 50 for people in PEOPLE}
EXPLORED_AIM = {100_000: 250}
SORTED_AIM = {100_000: 100}
RANKED_AIM = {100_000: 200}
RANKED_ANEW_AIM = {100_000: 50}
GROUP_LOADED_AIM = {people: 60 for people in PEOPLE}
GROUP_COMPARED_AIM = {1_000: 300, 100_000: 300}

# A routine may grow by this much more than n log n from 1,000 people to 100,000: the processor's
# caches hold the former and not the latter.
GROWTH_AIM = 1.5

STARTS = [
    ('first window painted', 'first_painted', 'ms', {}),
    ('main window painted', 'painted', 'ms', PAINTED_AIM),
    ('settled', 'settled', 'ms', {}),
    ('memory (PSS)', 'memory', 'MiB', MEMORY_AIM),
]
ROUTINES = [
    ('FillPersonList', 'fillPersonList', LISTED_AIM),
    ('FillCategoryList', 'fillCategoryList', {}),
    ('category picked', 'pickCategory', {}),
    ('name clicked to chart painted', 'clickName', CLICKED_AIM),
    ('day picked to birthdays painted', 'pickBirthday', BIRTHDAY_AIM),
    ('other clicked to match painted', 'clickOther', COMPARED_AIM),
    ('everybody ranked and painted', 'searchMatches', RANKED_AIM),
    ('the ranking sorted anew to painted', 'sortMatchesAnew', RANKED_ANEW_AIM),
    ('group of 10,000 loaded to painted', 'loadGroup', GROUP_LOADED_AIM),
    ('group of 1,000 compared to painted', 'calculateGroup', GROUP_COMPARED_AIM),
    ('person\'s card opened to painted', 'openCard', CARD_AIM),
    ('day analysed', 'analyseDay', ANALYSED_AIM),
    ('date changed to details painted', 'changeDate', CHANGED_AIM),
    ('person manager opened to painted', 'openManager', {}),
    ('stepped to the next person', 'stepPerson', STEP_AIM),
    ('letter found and painted', 'findLetter', {}),
    ('person updated and painted', 'updatePerson', UPDATE_AIM),
    ('explorer opened to painted', 'openExplorer', EXPLORED_AIM),
    ('explorer refreshed to painted', 'refreshExplorer', EXPLORED_AIM),
    ('explorer sorted anew to painted', 'sortExplorer', SORTED_AIM),
]
FAVOURITES = [
    ('favourites listed', 'fillFavouritesMenu'),
    ('favourites dropped down', 'dropFavouritesDown'),
]
FAVOURITES_FLOOR = 'floorOfFavourites'
# The search for events, however many people there are; an aim is so many times the floor, or so many
# milliseconds.
EVENTS = [
    ('triples scanned', 'scanTriples', 1.3, 'times'),
    ('cycles scanned', 'scanCycles', 1.3, 'times'),
    ('triples found and painted', 'findTriples', 60, 'ms'),
    ('everything found and painted', 'findEverything', None, 'ms'),
]

# The reports, with as many people as the overview is to list: an aim is so many milliseconds.
REPORTS = [
    ('daily report shown', 'showDay', 30),
    ('monthly chart shown', 'showMonth', 30),
    ('daily report saved', 'saveDay', None),
    ('daily report to a page', 'printDay', 20),
    ('overview of 1,000 shown', 'showOverview', 150),
    ('the same words in a plain box', 'showOverviewFloor', None),
    ('rich text of 1 MB read', 'readRichText', 50),
    ('the same written', 'writeRichText', 50),
]
REPORTED_PEOPLE = 1_000

# Old databases of 100,000 people: an aim is so many milliseconds for a megabyte.
OLD_DATABASES = [
    ('Jet 3 read, a megabyte', 'readJet3', 10),
    ('Jet 4 read, a megabyte', 'readJet4', 10),
]
ADOPTION = ('40,000 people adopted', 'adoptEverybody', 3_000)

# The import into a database of as many people; an aim is so many milliseconds.
IMPORTS = [
    ('5,000 old names listed to painted', 'listOldNames', 100),
    ('5,000 people imported one by one', 'importPeople', 2_000),
]
IMPORTED_AMONG = 1_000


class Start:
    """One start of a program, which tells by first_paint.cpp what it has painted.

    The first window may be a splash; with the one that is named, the program is there.
    """

    def __init__(self, program, window):
        began = time.monotonic_ns()
        with subprocess.Popen([program], stdout=subprocess.PIPE, text=True) as process:
            try:
                moments = self._moments(process, window)
                self.memory = self._memory(process.pid)
            finally:
                process.kill()
        self.first_painted, self.painted, self.settled = (
            (moment - began) / 1e6 for moment in moments)

    @staticmethod
    def _moments(process, window):
        painted = {}
        for line in process.stdout:
            what, *name, moment = line.split()
            if what == 'painted':
                painted[name[0]] = int(moment)
            elif what == 'settled' and window in painted:
                return min(painted.values()), painted[window], int(moment)
        raise RuntimeError(f'the window {window} has not been painted')

    @staticmethod
    def _memory(process):
        sizes = Path(f'/proc/{process}/smaps_rollup').read_text(encoding='ascii')
        return int(re.search(r'^Pss: +(\d+) kB', sizes, re.MULTILINE)[1]) / 1024


def lay_out(programs, schema, interpretations, folder, people):
    """A directory that the programs in it take for Ondara's, with so many people."""
    folder.mkdir()
    for program in ('bench_ondara', 'bench_routines'):
        shutil.copy2(programs / program, folder)
    shutil.copy2(interpretations, folder)
    subprocess.run([programs / 'bench_people', schema, folder / 'Ondara2.mdb', str(people)],
                   check=True)


def measure_starts(programs, folders):
    """The starts of the empty window and, for each number of people, those of Ondara."""
    empty, ondara = [], {people: [] for people in folders}
    for _ in range(ROUNDS):
        empty.append(Start(programs / 'bench_empty', 'empty'))
        for people, folder in folders.items():
            ondara[people].append(Start(folder / 'bench_ondara', 'frmMain'))
    return empty, ondara


def measure_routines(folder, chosen):
    """The time of each routine and floor that the filter chooses, in milliseconds."""
    report = subprocess.run(
        [folder / 'bench_routines', f'--benchmark_filter={chosen}',
         f'--benchmark_repetitions={REPETITIONS}',
         '--benchmark_min_time=0.05', '--benchmark_enable_random_interleaving=true',
         '--benchmark_report_aggregates_only=true', '--benchmark_format=json'],
        check=True, stdout=subprocess.PIPE, text=True).stdout
    return {run['run_name'].split('/')[0]: run['real_time'] / 1e6
            for run in json.loads(report)['benchmarks'] if run['aggregate_name'] == 'median'}


def measure_old_databases(program):
    """The time that each takes for a megabyte, and that of the adoption, in milliseconds."""
    report = subprocess.run([program, '--benchmark_format=json'], check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    return {run['run_name'].split('/')[0]: 1e9 / run['bytes_per_second']
            if 'bytes_per_second' in run else run['real_time']
            for run in json.loads(report)['benchmarks']}


def verdict(value, aim, unit):
    if aim is None:
        return ''
    return f'{"met" if value <= aim else "MISSED"}: <= {aim} {unit}'


def print_row(*cells):
    what, *figures, judged = cells
    print(f'{what:36}' + ''.join(f'{figure:>14}' for figure in figures) + f'   {judged}'.rstrip())


def print_starts(empty, ondara):
    print_row('start', 'people', 'Ondara', 'empty window', 'ratio', 'aim')
    for what, figure, unit, aims in STARTS:
        for people, starts in ondara.items():
            pairs = [(getattr(start, figure), getattr(floor, figure))
                     for start, floor in zip(starts, empty)]
            value, floor = (statistics.median(side) for side in zip(*pairs))
            ratio = statistics.median(one / other for one, other in pairs)
            print_row(what, f'{people:,}', f'{value:.1f} {unit}', f'{floor:.1f} {unit}',
                      f'{ratio:.2f}', verdict(ratio, aims.get(people), 'times'))


def print_routines(routines):
    print_row('routine', 'people', 'Ondara', 'floor', 'ratio', 'aim')
    for what, routine, aims in ROUTINES:
        for people, times in routines.items():
            value, floor = times[routine], times[f'{routine}Floor']
            print_row(what, f'{people:,}', f'{value:.3f} ms', f'{floor:.3f} ms',
                      f'{value / floor:.2f}', verdict(value, aims.get(people), 'ms'))


def print_favourites(times):
    print_row('10,000 favourites', '', 'Ondara', 'floor', 'ratio', '')
    floor = times[FAVOURITES_FLOOR]
    for what, routine in FAVOURITES:
        value = times[routine]
        print_row(what, '', f'{value:.3f} ms', f'{floor:.3f} ms', f'{value / floor:.2f}', '')


def print_events(times):
    print_row('events of a hundred years', '', 'Ondara', 'floor', 'ratio', 'aim')
    for what, routine, aim, unit in EVENTS:
        value, floor = times[routine], times[f'{routine}Floor']
        print_row(what, '', f'{value:.3f} ms', f'{floor:.3f} ms', f'{value / floor:.2f}',
                  verdict(value if unit == 'ms' else value / floor, aim, unit))


def print_reports(times):
    print_row('reports', '', 'Ondara', '', '', 'aim')
    for what, routine, aim in REPORTS:
        print_row(what, '', f'{times[routine]:.3f} ms', '', '',
                  verdict(times[routine], aim, 'ms'))


def print_old_databases(times):
    print_row('old databases', '', 'Ondara', '', '', 'aim')
    for what, routine, aim in [*OLD_DATABASES, ADOPTION]:
        print_row(what, '', f'{times[routine]:.3f} ms', '', '',
                  verdict(times[routine], aim, 'ms'))


def print_imports(times):
    print_row('import', '', 'Ondara', 'floor', 'ratio', 'aim')
    for what, routine, aim in IMPORTS:
        value, floor = times[routine], times[f'{routine}Floor']
        print_row(what, '', f'{value:.3f} ms', f'{floor:.3f} ms', f'{value / floor:.2f}',
                  verdict(value, aim, 'ms'))


def print_growth(routines):
    print_row('growth, per n log n', 'people', 'Ondara', 'floor', '', 'aim')
    few, many = 1_000, 100_000
    expected = many * math.log(many) / (few * math.log(few))
    for what, routine, _ in ROUTINES:
        growth, floor = (routines[many][name] / routines[few][name] / expected
                         for name in (routine, f'{routine}Floor'))
        print_row(what, f'{many:,}', f'{growth:.2f}', f'{floor:.2f}', '',
                  verdict(growth, GROWTH_AIM, 'times'))


def main():
    programs, schema, interpretations = (Path(argument).resolve() for argument in sys.argv[1:])
    with tempfile.TemporaryDirectory(dir=programs) as root:
        os.environ.setdefault('XDG_RUNTIME_DIR', root)  # Qt asks for one
        folders = {people: Path(root) / str(people) for people in PEOPLE}
        for people, folder in folders.items():
            lay_out(programs, schema, interpretations, folder, people)
        starts = measure_starts(programs, folders)
        events = '|'.join(routine for _, routine, _, _ in EVENTS)
        reports = '|'.join(f'{routine}/' for _, routine, _ in REPORTS)
        imports = '|'.join(routine for _, routine, _ in IMPORTS)
        routines = {people: measure_routines(folder, f'-Favourites|{events}|{reports}|{imports}')
                    for people, folder in folders.items()}
        favourites = measure_routines(folders[PEOPLE[0]], 'Favourites')
        searches = measure_routines(folders[PEOPLE[0]], events)
        reported = measure_routines(folders[REPORTED_PEOPLE], reports)
        imported = measure_routines(folders[IMPORTED_AMONG], imports)
    print_starts(*starts)
    print()
    print_routines(routines)
    print()
    print_growth(routines)
    print()
    print_favourites(favourites)
    print()
    print_events(searches)
    print()
    print_reports(reported)
    print()
    print_old_databases(measure_old_databases(programs / 'bench_jet'))
    print()
    print_imports(imported)


if __name__ == '__main__':
    main()
