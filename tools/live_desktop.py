"""A screen for the proofs and the screenshots: Xvfb, a window manager, a compositor, and what a person does there.

Needs no display and takes none: Xvfb chooses a free number. Everything that was started is ended, by its number.
"""
import os
import shutil
import subprocess
import time

from live_session import Failed, eventually

NEEDED = ("Xvfb", "openbox", "picom", "xdotool", "import")


class Screen:
    """Use as a context. `environment` is what a program needs to show its windows here."""

    def __init__(self, width=1920, height=1080, compositor=True):
        missing = [program for program in NEEDED if shutil.which(program) is None]
        if missing:
            raise Failed(f"not installed: {', '.join(missing)} (packaging/install-dependencies screens)")
        reader, writer = os.pipe()
        self.started = [subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{width}x{height}x24", "-nolisten", "tcp",
             "-noreset"], pass_fds=[writer], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)]
        os.close(writer)
        with os.fdopen(reader) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise Failed("Xvfb did not start")
        self.environment = {"DISPLAY": f":{number}", "QT_QPA_PLATFORM": "xcb"}
        self.run_beside("openbox")
        if compositor:
            self.run_beside("picom", "--backend", "xrender", "--config", "/dev/null")

    def __enter__(self):
        return self

    def __exit__(self, kind, error, trace):
        for process in reversed(self.started):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()

    def run_beside(self, *command):
        self.started.append(subprocess.Popen(command, env={**os.environ, **self.environment},
                                             stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                             stderr=subprocess.DEVNULL))

    def xdotool(self, *arguments):
        done = subprocess.run(["xdotool", *map(str, arguments)], env={**os.environ, **self.environment},
                              stdin=subprocess.DEVNULL, capture_output=True, text=True)
        return done.stdout.strip() if done.returncode == 0 else ""

    def window(self, title, deadline=20):
        """Waits for the visible window whose whole title that is; its number."""
        return eventually(lambda: self.xdotool("search", "--onlyvisible", "--name", f"^{title}$").split("\n")[0],
                          deadline, f"a window \"{title}\"")

    def has_window(self, title):
        return bool(self.xdotool("search", "--onlyvisible", "--name", f"^{title}$"))

    def activate(self, window):
        self.xdotool("windowactivate", "--sync", window)

    def press(self, *keys):
        """Key strokes to the window that has the focus, as a keyboard gives them."""
        for key in keys:
            self.xdotool("key", "--clearmodifiers", key)

    def hold(self, key, seconds):
        self.xdotool("keydown", key)
        time.sleep(seconds)
        self.xdotool("keyup", key)

    def picture(self, path, window="root"):
        subprocess.run(["import", "-window", str(window), "-strip", str(path)], check=True,
                       env={**os.environ, **self.environment}, stdin=subprocess.DEVNULL)
