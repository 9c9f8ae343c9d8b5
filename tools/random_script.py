#!/usr/bin/env python3
"""Writes a random replay script: operators who click everything, odd frames, remote clients, logins, closings, nonsense.

usage: tools/random_script.py NAMES SEED      NAMES: a file with what `quorrin-replay --names` printed

The same names and seed give the same bytes. Most lines are good; now and then one is not, and some values are out of
range on purpose: whatever comes, the station must come to one of its documented ends.
"""
import json
import random
import sys

PROPERTIES = {
    "SensorFrame": ["IrAdc0", "IrAdcDisplay", "IrAdcHead", "SonarCm", "HumanAdc1", "HumanAdc2"],
    "IrFrame": ["IrAdc1", "IrAdc2", "IrAdc3", "IrAdc4", "IrAdc5", "IrAdc6"],
    "MotorFrame": ["EncoderPositionLeft", "EncoderPositionRight", "EncoderSpeedLeft", "EncoderSpeedRight",
                   "DriveCurrentLeft", "DriveCurrentRight"],
    "PowerFrame": ["PowerRefAdc", "Battery1Adc", "Battery2Adc", "DcInAdc", "Battery1TempAdc", "Battery2TempAdc",
                   "ChargerStatusByte", "ChargerFlagsByte"],
    "ImageFrame": [],
    "SoundFrame": [],
}
TEXTS = ["", "0", "1", "-1", "5000", "9001", "10000", "32767", "32768", "-32768", "65535", "1e400", "0.5", "abc", " 7 ",
         "127", "255", "256", "999", "1.2", "..", "10 ", "\u00fc\u673a", "x" * 200, "10001", "70000", "nan"]

ARRAYS = ["wskCommand", "wskSensor", "wskVideo", "wskAudio", "wskSendVoice", "wskTTS"]


def read_names(path):
    kinds, fields = {}, []
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            entry = json.loads(line)
            if "field" in entry:
                fields.append(entry["field"])
            else:
                kinds.setdefault(entry["kind"], []).append(entry["control"])
    return kinds, fields


class Writer:
    def __init__(self, names, seed):
        self.kinds, self.fields = names
        self.random = random.Random(seed)
        self.lines = []
        self.t = 0
        self.wild = self.random.random() < 0.3      # readings from the whole range of 16 bits
        self.sticky = self.random.random() < 0.5    # there is a joystick
        self.buttons = self.random.choice([0, 0, 4, 6, 7, 12, 32])  # 0: the script does not say
        self.stick = {"x": 5000, "y": 5000, "slider": 10000, "pov": -1, "buttons": []}
        self.controls = [name for group in self.kinds.values() for name in group]

    def reading(self):
        r = self.random
        if self.wild and r.random() < 0.2:
            return r.choice([-32768, 32767, 0, -1, 1, r.randint(-32768, 32767)])
        return r.choice([r.randint(0, 4095), r.randint(200, 1500), r.randint(-600, 600)])

    def frame(self):
        name = self.random.choice(list(PROPERTIES) + ["SensorFrame", "MotorFrame", "PowerFrame"])
        entry = {"frame": name}
        for key in PROPERTIES[name]:
            if self.random.random() < 0.7:
                value = self.reading()
                # A wheel speed of exactly -1 is a known end; keep it rare.
                if key.startswith("EncoderSpeed") and value == -1 and self.random.random() < 0.9:
                    value = -2
                entry[key] = [self.reading() for _ in range(4)] if key == "SonarCm" else value
        if name == "SoundFrame":
            entry["hex"] = "00ff" * self.random.randint(0, 40)
        return entry

    def set_value(self):
        r = self.random
        kind = r.choice([k for k in ("text", "slider", "check", "option", "dropdown") if k in self.kinds])
        value = {"text": lambda: r.choice(TEXTS), "slider": lambda: r.choice([-5, 0, 1, 50, 5000, 99999]),
                 "check": lambda: r.random() < 0.5, "option": lambda: True,
                 "dropdown": lambda: r.choice(["3", "7", "", "2026-11-20"])}[kind]()
        return {"set": r.choice(self.kinds[kind]), "to": value}

    def joystick(self):
        """The stick's next state: one or two of its values change, now and then to the one it has."""
        r = self.random
        axis = lambda: r.choice([0, 5000, 6000, 6001, 10000, r.randint(0, 10000)])
        changes = {"x": axis, "y": axis, "slider": axis,
                   "pov": lambda: r.choice([-1, 0, 4500, 9000, 18000, 27000, 35999]),
                   "buttons": lambda: sorted(r.sample(range(self.buttons or 12), r.choice([0, 1, 2, 3])))}
        for key in r.sample(sorted(changes), r.randint(1, 2)):
            self.stick[key] = changes[key]()
        if r.random() < 0.2:
            self.stick["buttons"] = r.choice([[0, 6], [1, 6], [0, 31]])
        entry = {"joystick": dict(self.stick)}
        if self.buttons and r.random() < 0.3:
            r.choice([entry, entry["joystick"]])["lButtons"] = self.buttons
        return entry

    def operator(self):
        r = self.random
        if self.sticky and r.random() < 0.3:
            return self.joystick()
        what = r.random()
        if what < 0.35:
            return {"click": r.choice(self.kinds["button"] + self.kinds.get("check", []))}
        if what < 0.45:
            return {r.choice(["press", "release"]): r.choice(self.kinds["button"])}
        if what < 0.75:
            return self.set_value()
        if what < 0.82:
            return {"focus": r.choice(self.kinds["text"])}
        if what < 0.88:
            return {"keyDown": r.choice([8, 13, 38, 65]), "on": r.choice(self.kinds["text"])}
        if what < 0.90:
            return self.panel()
        if what < 0.92:
            return {"answer": r.choice(["yes", "no", "ok"])}
        if what < 0.97:
            return {"watch": r.sample(self.fields + self.controls, r.randint(0, 5)), "every": r.choice([1, 70, 100, 999])}
        return r.choice([{"unload": True}, {"unload": "frmControlPanel"}, {"activate": "frmControlPanel"}])

    # The control panel: shown, driven by keys and buttons.
    def panel(self):
        r = self.random
        what = r.random()
        if what < 0.3:
            return {"click": "cmdShowControlPanel"}
        if what < 0.8:
            key = r.choice([8, 32, 34, 35, 36, 37, 38, 39, 40, 46, 65, 0, 255])
            return {r.choice(["keyDown", "keyDown", "keyUp"]): key}
        return {r.choice(["press", "release"]): "frmControlPanel.cmdTurn" + r.choice(["Left", "Right"])}

    def client(self):
        """What a remote client does, well or badly."""
        r = self.random
        array = r.choice(ARRAYS[:1] * 4 + ARRAYS)
        what = r.random()
        if what < 0.25:
            return {"connect": array, "from": r.choice(["10.0.0.5", "192.168.1.77", "fe80::1", ""]), "port": r.choice([0, 40000, 40001, 65535])}
        element = r.choice([1, 1, 1, 2, 3, 0, 32, 33, -1])
        if what < 0.9:
            return {"receive": array, "element": element, **self.payload()}
        return {r.choice(["hangup", "hangup", "socketError"]): array, "element": element}

    def payload(self):
        r = self.random
        fields = [str(r.choice([0, 7, 10, 11, 2000, 5000, 9500, 10000, -50, 32767, 32768, "007", " 5", "x", ""])) for _ in range(r.choice([8, 8, 8, 6, 9, 1]))]
        words = [r.choice(["Mode", "Clos", "Quit", "RLIS", "NLIS", "PING", "PINGPONG", "OKOK", "abc", "", "a^b", ",".join(fields), ",".join(fields)])
                 for _ in range(r.choice([1, 1, 2, 3]))]
        text = "".join("^\u0002" + word + "^\r" for word in words)
        if r.random() < 0.2:
            text = text[:r.randint(0, len(text))] + r.choice(["", "^", "\r", "\u0002", "\u00fc", "x" * 5000])
        return {"text": text} if r.random() < 0.7 else {"hex": text.encode("latin-1").hex()}

    def nonsense(self):
        r = self.random
        return r.choice([{"click": "cmdNope"}, {"frame": "TailFrame"}, {"set": "txtTh1", "to": None},
                         {"joystick": {"x": 1}}, {"connect": "wskNope", "from": "a", "port": 1},
                         {"receive": "wskCommand", "element": 1}, {"receive": "wskTTS", "element": 1, "text": "\u20ac"}, {"hangup": "wskCommand"},
                         {"frame": "IrFrame", "IrAdc1": 40000}, {}, {"t": -1, "click": "cmdStart"},
                         {"watch": ["robotX"], "every": 0}, {"login": True}, {"keyDown": 256}])

    def text(self):
        r = self.random
        if r.random() < 0.25:
            self.add({"login": True})
            if r.random() < 0.8:
                self.t = r.randint(0, 600)
                if r.random() < 0.5:
                    self.add(self.operator())
                self.add({"click": "frmLogin.cmdOK"})
        frames = r.random() < 0.8
        bad = r.random() < 0.15
        for _ in range(r.randint(1, 400)):
            self.t += r.choice([0, 0, 1, 20, 50, 100, 100, 100, 500, 3000 if r.random() < 0.1 else 100])
            if frames and r.random() < 0.85:
                self.add(self.frame())
            elif r.random() < 0.4:
                self.add(self.client())
            else:
                self.add(self.operator())
            if bad and r.random() < 0.01:
                self.add(self.nonsense())
        if r.random() < 0.02:
            self.lines.append(r.choice(['{"t": 1', "\x00", "{'t': 1}", "[]", "nonsense"]))
        return "".join(line + "\n" for line in self.lines)

    def add(self, entry):
        self.lines.append(json.dumps({"t": self.t, **entry}, ensure_ascii=False))


def random_script(names, seed):
    return Writer(names, seed).text()


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.stdout.write(random_script(read_names(sys.argv[1]), int(sys.argv[2])))
