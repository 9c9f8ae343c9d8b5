#!/usr/bin/env python3
"""A robot behind the gateways, in the standard library only: wheels that turn, ranges of an empty hall.

    examples/robot.py [--listen 127.127.0.1] [--port 10001]

The motion link is on the port, the multimedia link on the next one. The protocol is told in docs/robot-protocol.md.
"""
import argparse, select, socket, struct, threading, time

HELLO, HEARTBEAT, GOODBYE = 1, 2, 3
SET_DRIVE_VELOCITIES, MOVE_DRIVES_TIMED, SUSPEND_DRIVE, WRITE_POWER_BYTE = 5, 6, 8, 11
SENSOR_FRAME, IR_FRAME, MOTOR_FRAME, POWER_FRAME = 17, 18, 19, 20
MOT, TI = 1, 2
NOT_COMMANDED, LEASE, DEAD_MAN, SPEED_LIMIT = -32768, 2.0, 0.5, 2000
MOTION_POWER, COUNTS = 4, 32767  # bit 2 of the power byte; encoders go round here


def varint(number):
    number &= (1 << 64) - 1  # a negative number is sign-extended to 64 bits
    out = bytearray()
    while number > 127:
        out.append(number & 127 | 128)
        number >>= 7
    return bytes(out + bytes([number]))


def field(number, value):
    if isinstance(value, int):
        return varint(number << 3) + varint(value)
    return varint(number << 3 | 2) + varint(len(value)) + value


def packet(kind, *values):
    """A packet whose body has the values as its fields 1, 2, 3 ..."""
    message = field(kind, b"".join(field(i, value) for i, value in enumerate(values, 1)))
    return struct.pack(">I", len(message)) + message


def parse(data):
    """The fields of a message: {number: int or bytes}. The protocol has no other kinds of fields."""
    fields, at = {}, 0

    def read():
        nonlocal at
        number = shift = 0
        while True:
            byte, at = data[at], at + 1
            number |= (byte & 127) << shift
            shift += 7
            if byte < 128:
                return number - (1 << 64) if number >= 1 << 63 else number

    while at < len(data):
        key = read()
        value = read()
        if key & 7 == 2:
            value, at = data[at:at + value], at + value
        fields[key >> 3] = value
    return fields


class Robot:
    speed, count, lease, power = [0, 0], [0.0, 0.0], 0.0, 0  # left and right; the left drive is mirrored

    def obey(self, kind, body):
        if kind == SET_DRIVE_VELOCITIES:
            self.lease = time.monotonic() + LEASE
            for side in (0, 1):
                speed = body.get(side + 1, 0)
                if speed != NOT_COMMANDED:
                    self.speed[side] = max(-SPEED_LIMIT, min(SPEED_LIMIT, speed))
        elif kind == SUSPEND_DRIVE:
            self.speed[body.get(1, 0) & 1] = 0
        elif kind == WRITE_POWER_BYTE:
            self.power = body.get(1, 0)

    def move(self, seconds, held):
        if not held or time.monotonic() > self.lease or not self.power & MOTION_POWER:
            self.speed = [0, 0]
        self.count = [(count + speed * seconds) % COUNTS for count, speed in zip(self.count, self.speed)]

    def frames(self, role, tick):
        if role == TI:  # batteries at 12 V, no dock, both cool
            return packet(POWER_FRAME, 2048, 2048, 2048, 0, 900, 900, 0, 0) if tick % 5 == 0 else b""
        return (packet(SENSOR_FRAME, 600, 600, 600, 250, 250, 250, 250, 2048, 2048) + packet(IR_FRAME, *[600] * 6)
                + packet(MOTOR_FRAME, *map(int, self.count), *self.speed, 100, 100))


def talk(robot, role, line):
    """One gateway: hello, then ten rounds a second, until it is silent or gone."""
    line.sendall(packet(HELLO, b"quorrin", 1, role, b"robot.py"))
    received, greeted, heard, tick, last = b"", False, time.monotonic(), 0, time.monotonic()
    while time.monotonic() - heard < 2:
        if select.select([line], [], [], max(0, last + 0.1 - time.monotonic()))[0]:
            data = line.recv(65536)
            if not data:
                return
            received, heard = received + data, time.monotonic()
            while len(received) >= 4 and len(received) >= 4 + struct.unpack(">I", received[:4])[0]:
                end = 4 + struct.unpack(">I", received[:4])[0]
                (kind, body), = parse(received[4:end]).items()
                received, body = received[end:], parse(body)
                if not greeted and (kind, body.get(1), body.get(2), body.get(3)) != (HELLO, b"quorrin", 1, role):
                    return line.sendall(packet(GOODBYE, b"not the gateway of this link"))
                greeted = True
                robot.obey(kind, body)
        now = time.monotonic()
        if now - last >= 0.1:
            if role == MOT:
                robot.move(now - last, now - heard < DEAD_MAN)
            tick, last = tick + 1, now
            line.sendall(packet(HEARTBEAT) + (robot.frames(role, tick) if greeted else b""))


def serve(robot, role, address, port):
    with socket.create_server((address, port)) as server:
        while True:
            line, peer = server.accept()
            print("connected:", "mot" if role == MOT else "ti", peer, flush=True)
            try:
                with line:
                    talk(robot, role, line)
            except (OSError, ValueError, IndexError) as error:
                print("dropped:", error, flush=True)
            if role == MOT:
                robot.speed = [0, 0]  # nobody holds it


if __name__ == "__main__":
    options = argparse.ArgumentParser()
    options.add_argument("--listen", default="127.127.0.1")
    options.add_argument("--port", type=int, default=10001)
    chosen, the_robot = options.parse_args(), Robot()
    threading.Thread(target=serve, args=(the_robot, TI, chosen.listen, chosen.port + 1), daemon=True).start()
    serve(the_robot, MOT, chosen.listen, chosen.port)
