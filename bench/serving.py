#!/usr/bin/env python3
"""Figures of a served phone that only a page sees: bench/serving.py DOZEWELL-SIMULATOR

How long it takes from a touch until the page hears of what it did; and what a served phone costs
that has nothing to do, with a page that watches it: bytes, and how often a thread of it wakes up.
And the bytes while a finger turns a wheel of the panel.
"""
import http.client
import json
import os
import signal
import socket
import statistics
import subprocess
import sys
import time
import urllib.parse

TOUCHES = 500
IDLE_SECONDS = 10
TURN_SECONDS = 4
FRAME = 1 / 60  # seconds
WHEEL = (129, 437)  # points: the hours, on the screen of a fresh phone


class Server:
    def __init__(self, program):
        self.process = subprocess.Popen(
            [program, "serve", "--port", "0"], stdout=subprocess.PIPE, text=True)
        # "The phone is at http://127.0.0.1:8420/0123456789abcdef/?token=…"
        address = urllib.parse.urlsplit(self.process.stdout.readline().split()[-1])
        self.port = address.port
        token = urllib.parse.parse_qs(address.query)["token"][0]
        self.secret = {"Authorization": "Bearer " + token}
        self.connection = http.client.HTTPConnection("127.0.0.1", self.port)
        self.connection.connect()
        self.connection.sock.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)

    def post(self, path, body):
        self.connection.request("POST", path, json.dumps(body),
                                {"Content-Type": "application/json", **self.secret})
        answer = self.connection.getresponse()
        text = answer.read()
        if answer.status != 200:
            sys.exit(f"{path}: {answer.status} {text.decode()}")

    def command(self, *lines):
        self.post("/api/command", {"lines": lines})

    def wake_ups(self):
        """How often threads of the process that serves have gone to sleep so far."""
        children = f"/proc/{self.process.pid}/task/{self.process.pid}/children"
        with open(children, encoding="ascii") as file:
            served = file.read().split()[0]
        count = 0
        for task in os.listdir(f"/proc/{served}/task"):
            with open(f"/proc/{served}/task/{task}/status", encoding="ascii") as file:
                count += sum(int(line.split()[1]) for line in file
                             if line.startswith("voluntary_ctxt_switches"))
        return count

    def end(self):
        self.process.send_signal(signal.SIGTERM)
        self.process.wait()


class Page:
    """Watches, and counts what it is sent."""

    def __init__(self, server):
        self.socket = socket.create_connection(("127.0.0.1", server.port))
        headers = {"Host": f"127.0.0.1:{server.port}", **server.secret}
        lines = [f"{name}: {value}" for name, value in headers.items()]
        self.socket.sendall("\r\n".join(["GET /api/events HTTP/1.1", *lines, "", ""]).encode())
        self.text = b""
        self.bytes = 0
        self.wait_for(b"event: snapshot")
        self.drain(1)

    def wait_for(self, text):
        while text not in self.text:
            piece = self.socket.recv(1 << 16)
            if not piece:
                sys.exit("the server has ended the stream")
            self.bytes += len(piece)
            self.text += piece
        self.text = b""

    def drain(self, seconds):
        """Reads what comes within that time."""
        end = time.monotonic() + seconds
        while (left := end - time.monotonic()) > 0:
            self.socket.settimeout(left)
            try:
                self.bytes += len(self.socket.recv(1 << 16))
            except TimeoutError:
                break
        self.socket.settimeout(None)


def measure_idle(server, page):
    server.command("pause")
    page.drain(1)
    before = server.wake_ups()
    received = page.bytes
    page.drain(IDLE_SECONDS)
    print(f"idle: {(page.bytes - received) / IDLE_SECONDS:g} bytes/s, "
          f"{(server.wake_ups() - before) / IDLE_SECONDS:g} wake-ups/s")


def measure_touches(server, page):
    """A button that goes away when it is touched, and comes back in between."""
    server.command("let window UIApplication.sharedApplication.keyWindow",
                   "let button UIButton buttonWithType: 1",
                   "send $button setFrame: {{100, 100}, {100, 50}}",
                   "send $button addTarget:action:forControlEvents: $button "
                   "selector removeFromSuperview 1")
    delays = []
    for _ in range(TOUCHES):
        server.command("send $window addSubview: $button")
        page.wait_for(b"event: scene")
        time.sleep(0.02)  # as people do: at least a frame later
        start = time.perf_counter()
        server.command("touch began 120 120")
        page.wait_for(b"event: scene")
        delays.append(1000 * (time.perf_counter() - start))
        server.command("touch ended 120 120")
        page.drain(0.02)
    delays.sort()
    print(f"from touch to changed scene: median {statistics.median(delays):.2f} ms, "
          f"99th percentile {delays[len(delays) * 99 // 100]:.2f} ms")


def measure_turn(server, page):
    """Up and down again by two rows, a step a frame."""
    server.command("control-center open", "advance 1s", "tap $header.dozewellButton")
    page.drain(2)
    x, y = WHEEL
    server.command(f"touch began {x} {y}")
    page.drain(0.5)
    received = page.bytes
    start = time.monotonic()
    for step in range(round(TURN_SECONDS / FRAME)):
        server.command(f"touch moved {x} {y - abs(step % 64 - 32) * 2}")
        page.drain(max(0, start + (step + 1) * FRAME - time.monotonic()))
    turned = page.bytes - received
    server.command(f"touch ended {x} {y}")
    if turned == 0:
        sys.exit("the wheel has not turned")
    print(f"a wheel turning: {turned / (time.monotonic() - start) / 1000:.0f} kB/s")


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    server = Server(sys.argv[1])
    try:
        page = Page(server)
        measure_idle(server, page)
        measure_touches(server, page)
        measure_turn(server, page)
    finally:
        server.end()


if __name__ == "__main__":
    main()
