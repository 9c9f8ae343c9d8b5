"""The instrumented station of the load proofs (bench/load_session.cpp), with its robot and gateways."""
import json
import signal
import subprocess
import time

from live_session import Failed, ROOT, Session, eventually

WANDER_S = 20.0


def build():
    subprocess.run(["cmake", "--preset", "release"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", "--preset", "release", "--target", "programs", "load_session"], cwd=ROOT,
                   check=True, stdout=subprocess.DEVNULL)


class LoadStation(Session):
    """Use as a context; begin() returns when it wanders."""

    def begin(self):
        self.start_station("load_session", stdin=subprocess.PIPE)
        self.wait_for_mode("wondering", WANDER_S)

    def order(self, words):
        self.station.stdin.write(words.encode() + b"\n")
        self.station.stdin.flush()

    def tell(self, loop=None):
        """The station's figures."""
        before = len(self.objects())
        self.order("tell")
        if loop is not None:
            loop.run(5, until=lambda: len(self.objects()) > before)
        eventually(lambda: len(self.objects()) > before, 5, "the station tells its figures")
        return self.objects()[-1]

    def objects(self):
        lines = self.output_file.read_text().splitlines()
        return [json.loads(line) for line in lines if line.startswith("{") and line.endswith("}")]

    def alive(self):
        return self.station.poll() is None

    def modes_since(self, moment):
        """The status lines' modes since that moment of time.monotonic()."""
        since = moment - self.started
        return [line["mode"] for line in self.statuses() if float(line["t"]) >= since]

    def leave(self):
        self.station.send_signal(signal.SIGTERM)
        if self.station.wait(15) != 0:
            raise Failed(f"the station ended with {self.station.returncode}")
        self.station.stdin.close()


def distance_since(session, moment):
    """Metres that the robot has rolled since that moment."""
    at = moment - session.offset
    lines = session.truth()
    first = min(lines, key=lambda line: abs(line["t"] - at))
    return lines[-1]["distance"] - first["distance"], lines[-1]["contacts"] - first["contacts"]


def now():
    return time.monotonic()
