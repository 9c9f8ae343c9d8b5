"""A live session for the proofs: simulated robot, station, their folders, what they say.

Everything runs on loopback in a network namespace of its own where the machine allows that (run_in_namespace), and in
folders of its own. Times are seconds; a truth line's `t` counts from the robot's start, `offset` brings wall time to it.
"""
import fcntl
import json
import math
import os
import pathlib
import re
import signal
import struct
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
TITLES = {"mot": "Quorrin Gateway_MotionControl", "ti": "Quorrin Gateway_Multimedia"}
STILL_M_S, STILL_RAD_S = 0.005, 0.02


class Failed(Exception):
    """The proof does not hold; the text says why."""


def run_in_namespace():
    """Starts the calling script anew in a network namespace of its own; returns in there."""
    if os.environ.get("QUORRIN_PROOF_NAMESPACE"):
        return
    os.environ["QUORRIN_PROOF_NAMESPACE"] = "1"
    os.execv(ROOT / "tests/in_namespace.sh", ["in_namespace.sh", sys.executable, *sys.argv])


def eventually(condition, deadline, what):
    end = time.monotonic() + deadline
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise Failed(f"not within {deadline} s: {what}")
        time.sleep(0.01)


class Session:
    """One robot and one station. Use as a context: what was started is ended, by its number."""

    def __init__(self, binaries, site="office", seed=1, robot_options=()):
        self.bin = pathlib.Path(binaries)
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="quorrin-proof-"))
        self.environment = {**os.environ, "XDG_DATA_HOME": f"{self.folder}/d", "XDG_CONFIG_HOME": f"{self.folder}/c",
                            "XDG_CACHE_HOME": f"{self.folder}/k", "XDG_STATE_HOME": f"{self.folder}/s"}
        self.truth_file = self.folder / "truth.jsonl"
        self.output_file = self.folder / "station.out"
        self.robot = self.start("robot.out", "quorrin-robot", "--headless", "--site", site, "--seed", str(seed),
                                "--truth", str(self.truth_file), *robot_options)
        self.station = None
        self.offset = None

    def start(self, output, program, *arguments, stdin=subprocess.DEVNULL):
        with open(self.folder / output, "ab") as file:
            return subprocess.Popen([self.bin / program, *arguments], stdin=stdin, stdout=file, stderr=file,
                                    env=self.environment, start_new_session=True)

    def start_station(self, program="quorrin-station-headless", environment=(), stdin=subprocess.DEVNULL):
        self.environment.update(environment)
        eventually(lambda: self.truth(), 10, "the robot's truth file")
        self.measure_offset()
        self.output_file.unlink(missing_ok=True)
        self.station = self.start("station.out", program, stdin=stdin)
        self.started = time.monotonic()

    def __enter__(self):
        return self

    def __exit__(self, kind, error, trace):
        for process in (self.station, self.robot):
            if process is not None and process.poll() is None:
                process.send_signal(signal.SIGTERM)
                try:
                    process.wait(10)
                except subprocess.TimeoutExpired:
                    process.kill()
        if kind is None:
            subprocess.run(["rm", "-rf", self.folder], check=True)
        else:
            print(f"the session's folder is kept: {self.folder}", file=sys.stderr)

    def truth(self):
        """All whole lines of the truth file so far."""
        try:
            text = self.truth_file.read_text()
        except FileNotFoundError:
            return []
        return [json.loads(line) for line in text[:text.rfind("\n") + 1].splitlines()]

    def measure_offset(self):
        """Watches the truth file grow for half a second: the earliest that a line was seen is when it was written."""
        self.offset = math.inf
        end, seen = time.monotonic() + 0.5, len(self.truth())
        while time.monotonic() < end:
            lines = self.truth()
            if len(lines) > seen:
                seen = len(lines)
                self.offset = min(self.offset, time.monotonic() - lines[-1]["t"])
            time.sleep(0.002)

    def statuses(self):
        """The station's status lines, as dictionaries of texts; the mode may hold a blank."""
        pattern = re.compile(r"^t=(\S+) mode=(.*?) (mot=.*)$", re.MULTILINE)
        found = []
        for t, mode, rest in pattern.findall(self.output_file.read_text()):
            found.append({"t": t, "mode": mode, **dict(pair.split("=", 1) for pair in rest.split())})
        return found

    def status(self):
        lines = self.statuses()
        return lines[-1] if lines else {"mode": "", "mot": "0", "ti": "0"}

    def wait_for_mode(self, mode, deadline):
        eventually(lambda: self.status()["mode"] == mode or self.station.poll() is not None, deadline,
                   f"the station says \"{mode}\" (it says \"{self.status()['mode']}\")")
        if self.station.poll() is not None:
            raise Failed(f"the station ended with {self.station.returncode}")

    def gateway(self, link):
        """The process that shows that gateway's window, or 0."""
        try:
            with open(self.folder / "d/quorrin/run" / f"{TITLES[link]}.lock", "rb+") as file:
                lock = fcntl.fcntl(file, fcntl.F_GETLK, struct.pack("hh4xqqi4x", fcntl.F_WRLCK, 0, 0, 1, 0))
        except FileNotFoundError:
            return 0
        kind, _, _, _, process = struct.unpack("hh4xqqi4x", lock)
        return 0 if kind == fcntl.F_UNLCK else process

    def wait_until_rolling(self):
        """Returns when the wheels turn, so that a stop is one."""
        eventually(lambda: abs(self.truth()[-1]["v"]) > 0.1, 30, "the robot rolls")

    def still_after(self, moment, for_seconds=1.0):
        """Seconds from that moment of wall time to the first truth line from which on the wheels stand still."""
        killed = moment - self.offset
        eventually(lambda: self.truth()[-1]["t"] > killed + 0.6 + for_seconds, 10, "the truth file goes on")
        lines = [line for line in self.truth() if killed <= line["t"] <= killed + 0.6 + for_seconds]
        moving = [line["t"] for line in lines if abs(line["v"]) > STILL_M_S or abs(line["w"]) > STILL_RAD_S]
        if not moving:
            return 0.0
        later = [line["t"] for line in lines if line["t"] > moving[-1]]
        return (later[0] if later else math.inf) - killed
