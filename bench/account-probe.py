#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Probes the development backend's account defences and prints what it found.

    python3 bench/account-probe.py BUILD/server/tarnelo-devserver [server options...]

Starts the server on a fresh data directory that already exists with mode 0755,
and reports:
  * login answer times for an unknown address and for a known one with a wrong
    password: the very first unknown one, then the median of 20 each (every
    login from its own loopback address and for its own account, so that no
    throttle takes part);
  * whether another user's rows are reachable by their row id;
  * 200 wrong passwords in a row from one client: how many were answered as a
    wrong password, and whether the right one works afterwards;
  * whether the history key and a reset password appear on the console;
  * the modes of the data directory, the database files and the TLS key.
Server options are passed on as given (older builds know fewer of them).
"""
import http.client
import json
import os
import re
import sqlite3
import ssl
import statistics
import subprocess
import sys
import tempfile
import threading
import time
import urllib.parse

WRONG = "Incorrect email address or password."


class Server:
    def __init__(self, binary, options, data):
        self.data = data
        self.lines = []
        self.process = subprocess.Popen([binary, "--data", data, "--https-port", "0", "--http-port", "0", *options],
                                        stdout=subprocess.PIPE, text=True)
        threading.Thread(target=self._read, daemon=True).start()
        deadline = time.time() + 15
        while time.time() < deadline and not any(line.startswith("Demo account:") for line in self.lines):
            time.sleep(0.05)
        ready = next(line for line in self.lines if line.startswith("Tarnelo development backend ready:"))
        self.https = int(re.search(r"https=(\d+)", ready).group(1))
        self.http = int(re.search(r"http=(\d+)", ready).group(1))
        self.tls = ssl.create_default_context(cafile=ready.split(" ca=", 1)[1])

    def _read(self):
        for line in self.process.stdout:
            self.lines.append(line.rstrip("\n"))

    def ask(self, script, params, source="127.0.0.1"):
        """The answer's JSON and the seconds from request to answer, on a connection made beforehand."""
        connection = http.client.HTTPSConnection("127.0.0.1", self.https, context=self.tls, source_address=(source, 0))
        connection.connect()
        started = time.perf_counter()
        connection.request("GET", f"/tarnelo/v1/{script}?" + urllib.parse.urlencode(params))
        body = connection.getresponse().read()
        elapsed = time.perf_counter() - started
        connection.close()
        return json.loads(body), elapsed

    def first(self, script, params, source="127.0.0.1"):
        answer = self.ask(script, params, source)[0]
        return answer[0] if answer else {}

    def database(self, sql):
        with sqlite3.connect(f"file:{self.data}/devserver.sqlite?mode=ro", uri=True) as db:
            return db.execute(sql).fetchone()[0]

    def stop(self):
        self.process.terminate()
        self.process.wait(10)


def register(server, email, password):
    return server.first("register.php", {"fullname": "Probe", "emailaddress": email, "password": password})


def login(server, email, password, source="127.0.0.1"):
    return server.ask("login.php", {"username": email, "passcode": password}, source)


def timings(server):
    for i in range(20):
        register(server, f"known{i}@probe.test", "Right-Pass-1")
    first_unknown = login(server, "unknown@probe.test", "Guess-1", "127.0.3.1")[1]
    unknown, known = [], []
    for i in range(20):
        unknown.append(login(server, f"unknown{i}@probe.test", "Guess-1", f"127.0.3.{i + 2}")[1])
        known.append(login(server, f"known{i}@probe.test", "Guess-1", f"127.0.4.{i + 1}")[1])
    print(f"login time, first unknown address: {first_unknown * 1000:.1f} ms")
    print(f"login time, median of 20: unknown {statistics.median(unknown) * 1000:.1f} ms, "
          f"known with a wrong password {statistics.median(known) * 1000:.1f} ms")


def reach(server):
    for name in ("alice", "bob"):
        register(server, f"{name}@probe.test", f"{name}-Pass-1")
    bob = login(server, "bob@probe.test", "bob-Pass-1", "127.0.5.1")[0][0]["userid"]
    medical = {"userid": bob, "conditionstatus": "Yes", "conditionname": "Bob's asthma", "smokerstatus": "No"}
    server.first("savemedical.php", medical, "127.0.5.1")
    row = server.database("SELECT id FROM users WHERE email = 'bob@probe.test'")
    details = server.ask("checkmedicaldetails.php", {"userid": row}, "127.0.5.2")[0]
    print(f"checkmedicaldetails.php with Bob's row id {row}: {json.dumps(details)[:100]}")
    profiles = sum(bool(server.first("logout.php", {"userid": i}, "127.0.5.2").get("emailaddress")) for i in range(1, 6))
    print(f"logout.php with ids 1..5: {profiles} of 5 answers carried a profile")


def guessing(server):
    register(server, "target@probe.test", "Right-Pass-1")
    tries = [login(server, "target@probe.test", f"Guess-{i}", "127.0.6.1") for i in range(200)]
    wrong = [elapsed for answer, elapsed in tries if answer[0]["messageresponse"] == WRONG]
    other = [elapsed for answer, elapsed in tries if answer[0]["messageresponse"] != WRONG]
    print(f"200 wrong passwords: {len(wrong)} answered as wrong (median {statistics.median(wrong) * 1000:.1f} ms), "
          f"{len(other)} refused otherwise" + (f" (median {statistics.median(other) * 1000:.1f} ms)" if other else "")
          + f"; last: {tries[-1][0][0]['messageresponse']!r}")
    right = login(server, "target@probe.test", "Right-Pass-1", "127.0.6.1")[0][0]
    print(f"then the right password: scode {right['scode']} ({right['messageresponse']!r})")


def secrets(server, history_key):
    connection = http.client.HTTPConnection("127.0.0.1", server.http)
    connection.request("GET", "/data/2.5/air_pollution/history?lat=1&lon=2&start=0&end=0&appid=" + history_key)
    connection.getresponse().read()
    server.first("resetpass.php", {"emailaddress": "target@probe.test"})
    time.sleep(0.3)
    print(f"history key on the console: {any(history_key in line for line in server.lines)}")
    print("reset line: " + next((line for line in server.lines if line.startswith("Password reset for target")), "(none)"))


def modes(data):
    for name in ("", "devserver.sqlite", "devserver.sqlite-wal", "devserver.sqlite-shm", "tls", "tls/key.pem"):
        path = os.path.join(data, name)
        print(f"mode of {name or 'data directory'}: {oct(os.stat(path).st_mode & 0o777) if os.path.exists(path) else 'missing'}")


def main():
    history_key = "probe-history-key-0123456789"
    with tempfile.TemporaryDirectory() as data:
        os.chmod(data, 0o755)
        server = Server(sys.argv[1], ["--history-key", history_key, *sys.argv[2:]], data)
        try:
            timings(server)
            reach(server)
            guessing(server)
            secrets(server, history_key)
            modes(data)
        finally:
            server.stop()


if __name__ == "__main__":
    main()
