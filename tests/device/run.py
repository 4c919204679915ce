#!/usr/bin/env python3
"""Runs the panel on the bench: a virtual machine with a frame buffer, a touch screen and USB ports.

usage: run.py --build FOLDER --kernel FOLDER --output FOLDER [--arch NAME --system FOLDER]
              [SCENARIO...]
"""

import argparse
import itertools
import pathlib
import shutil
import signal
import subprocess
import sys
import time
import traceback

sys.dont_write_bytecode = True
SOURCE = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(SOURCE / "tests/device"))

from bench import initramfs, powercut  # noqa: E402
from bench.architecture import ARCHITECTURES  # noqa: E402
from bench.machine import COUNTED_TIME, PLUGGED  # noqa: E402
from bench.session import Session, Settings  # noqa: E402
from scenarios.table import SCENARIOS  # noqa: E402


def disk_options(settings):
    """A disk with the style file on it, and a log of its writes."""
    folder = settings.output / "disk"
    folder.mkdir(exist_ok=True)
    shutil.copyfile(settings.style, folder / settings.style.name)
    disk = settings.output / "disk.img"
    powercut.make_disk(disk, folder)
    shutil.copyfile(disk, str(disk) + ".base")
    return powercut.logged_disk(disk, settings.output / "disk.writes")


# The machines that scenarios ask for.
MACHINES = {
    "panel": lambda settings: {},
    "power": lambda settings: {"options": disk_options(settings)},
    "small": lambda settings: {"size": (640, 480), "options": COUNTED_TIME + PLUGGED},
    "wide": lambda settings: {"size": (1280, 800), "memory": 128},
}


def parse_arguments():
    parser = argparse.ArgumentParser(description="Runs the panel in a virtual machine.")
    for folder in ("--build", "--kernel", "--output"):
        parser.add_argument(folder, type=pathlib.Path, required=True)
    parser.add_argument("--arch", choices=ARCHITECTURES, default="amd64")
    parser.add_argument("--system", type=pathlib.Path, default="/",
                        help="what the guest has, when it is not this machine's own")
    parser.add_argument("scenarios", nargs="*", help="all, without any")
    arguments = parser.parse_args()
    unknown = set(arguments.scenarios) - {name for name, _, _ in SCENARIOS}
    if unknown:
        parser.error("there is no scenario %s" % ", ".join(sorted(unknown)))
    return arguments


def prepare(arguments):
    """What all machines need, made anew: the initramfs, and the gallery's own pictures, unless the
    first machine is to draw them."""
    output = arguments.output.resolve()
    output.mkdir(parents=True, exist_ok=True)
    for old in itertools.chain(output.glob("*.png"), output.glob("console-*")):
        old.unlink()
    settings = Settings(SOURCE, arguments.build.resolve(), arguments.kernel.resolve(),
                        arguments.system.resolve(), output, ARCHITECTURES[arguments.arch])
    initramfs.build(settings.kernel, settings.system, settings.architecture.screen_module,
                    settings.initramfs)
    shutil.rmtree(settings.shots, ignore_errors=True)
    if settings.is_own_system():
        subprocess.run(settings.drawing(settings.shots), stdout=subprocess.DEVNULL, check=True)
    return settings


class Report:
    def __init__(self):
        self.failed = []
        self.count = 0
        self.measurements = []

    def run(self, name, scenario, session):
        """Runs one; what goes wrong in it ends that one only."""
        started = time.monotonic()
        self.count += 1
        trouble = None
        try:
            scenario(session)
        except Exception as error:  # whatever it is, the others are still to run
            trouble = error
            self.failed.append(name)
        print("%-24s %s  %5.1f s" % (name, "FAILED" if trouble else "passed",
                                     time.monotonic() - started), flush=True)
        if trouble:
            print("".join(traceback.format_exception(trouble)), flush=True)
        return not trouble


def run_machine(report, settings, kind, scenarios):
    """Switches one machine on, and runs its scenarios one after the other."""
    started = time.monotonic()
    with Session(settings, kind, **MACHINES[kind](settings)) as session:
        session.measurements = report.measurements
        if not settings.shots.exists():
            session.draw_shots()
        session.start_gallery()
        print("%-24s ready   %5.1f s" % (kind + " machine", time.monotonic() - started), flush=True)
        for name, _, scenario in scenarios:
            if report.run(name, scenario, session):
                continue
            try:  # a clean panel for the next one
                session.keep_picture("failed-" + name)
                print(session.panel.log(), flush=True)
                session.panel.stop()
                session.start_gallery()
            except Exception:
                traceback.print_exc()
                return


def main():
    # Also when it is told to end, the machines are switched off.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended"))
    arguments = parse_arguments()
    started = time.monotonic()
    settings = prepare(arguments)
    report = Report()
    wanted = [row for row in SCENARIOS if not arguments.scenarios or row[0] in arguments.scenarios]
    for kind, scenarios in itertools.groupby(wanted, key=lambda row: row[1]):
        run_machine(report, settings, kind, list(scenarios))
    for measurement in report.measurements:
        print("%-44s %s" % measurement)
    print("%d of %d scenarios passed in %.0f s; their pictures are in %s" % (
        report.count - len(report.failed), len(wanted), time.monotonic() - started,
        settings.output))
    return 0 if report.count == len(wanted) and not report.failed else 1


if __name__ == "__main__":
    sys.exit(main())
