#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# How the development backend copes with clients that are slow, silent or
# pipelining. Starts the given tarnelo-devserver on a fresh data directory and
# on ports of its own, then, one scenario after the other:
#   - the latency of a normal request (new TLS connection, one GET) while N
#     silent TCP connections, N half-open TLS connections (TCP connected, no
#     ClientHello), or a mix of 64 slow ones are open (median and max of 10
#     requests; each gives up after 20 s, and counts as infinite). Slow
#     connections that need a handshake make it in the background, and count
#     once it is done;
#   - 100 clients that each send one request on a kept-alive connection and
#     keep it open: the time until the last one has its answer;
#   - 50 requests pipelined in one write on one connection, over HTTPS and
#     over plain HTTP: how many answers arrive, and whether the connection
#     then closes or stays silent;
#   - a request whose headers trickle in a byte every 100 ms: the time until
#     the server ends the connection (given up after 30 s);
#   - the time the server takes to exit on SIGTERM beside 64 slow connections.
# Usage: slow-clients.py path/to/tarnelo-devserver
import http.client
import re
import socket
import ssl
import statistics
import subprocess
import sys
import tempfile
import threading
import time

SCRIPT = "/tarnelo/v1/none.php"


def start_server(binary, data_dir):
    server = subprocess.Popen([binary, "--data", data_dir, "--https-port", "0", "--http-port", "0"],
                              stdout=subprocess.PIPE, text=True)
    for line in server.stdout:
        ready = re.match(r"^Tarnelo development backend ready: https=(\d+) http=(\d+) ca=(.+)$", line)
        if ready:
            # Keep reading its console so that it never blocks on a full pipe.
            threading.Thread(target=lambda: [None for _ in server.stdout], daemon=True).start()
            return server, int(ready.group(1)), int(ready.group(2)), ready.group(3)
    raise SystemExit("the server did not start")


class Group(list):
    """Slow connections of one scenario; some join late, from the background."""

    def __init__(self, connections=()):
        super().__init__(connections)
        self.closed = False

    def join(self, connection):
        if self.closed:
            connection.close()
        else:
            self.append(connection)

    def close(self):
        self.closed = True
        for connection in list(self):
            connection.close()


class Prober:
    def __init__(self, https_port, http_port, ca_file):
        self.https_port, self.http_port = https_port, http_port
        self.tls = ssl.create_default_context(cafile=ca_file)

    def tls_socket(self):
        return self.tls.wrap_socket(socket.create_connection(("127.0.0.1", self.https_port)), server_hostname="127.0.0.1")

    def normal_request(self):
        start = time.monotonic()
        connection = http.client.HTTPSConnection("127.0.0.1", self.https_port, context=self.tls, timeout=20)
        try:
            connection.request("GET", SCRIPT)
            connection.getresponse().read()
        except OSError:
            return float("inf")  # no answer within 20 s
        finally:
            connection.close()
        return time.monotonic() - start

    def latency_while(self, *groups):
        time.sleep(0.5)  # let the server take them up first
        samples = [self.normal_request() for _ in range(10)]
        result = "median %.1f ms, max %.1f ms (%d slow connections open)" % (
            statistics.median(samples) * 1e3, max(samples) * 1e3, sum(len(group) for group in groups))
        for group in groups:
            group.close()
        return result

    def silent_tcp(self, count):
        return Group(socket.create_connection(("127.0.0.1", self.https_port)) for _ in range(count))

    def tls_in_background(self, count, opening=b""):
        """Connections whose handshakes (and opening bytes) go on in threads,
        since they may have to wait for the server; each joins the group once
        its handshake is done."""
        group = Group()

        def open_one():
            try:
                connection = self.tls_socket()
                connection.sendall(opening)
                group.join(connection)
            except OSError:
                pass

        for _ in range(count):
            threading.Thread(target=open_one, daemon=True).start()
        return group

    def trickle(self, group, drip):
        def drip_until_closed():
            while not group.closed:
                for connection in list(group):
                    try:
                        connection.sendall(drip)
                    except OSError:
                        pass
                time.sleep(0.1)

        threading.Thread(target=drip_until_closed, daemon=True).start()
        return group

    def mixed_slow(self):
        """16 half-open TLS, 16 trickling a handshake, 16 silent after the handshake, 16 trickling headers."""
        handshakes = self.silent_tcp(16)
        for connection in handshakes:
            connection.sendall(bytes.fromhex("1603010200"))  # a TLS record header announcing 512 bytes
        self.trickle(handshakes, b"\0")
        headers = self.trickle(self.tls_in_background(16, ("GET %s HTTP/1.1\r\nX-Slow: " % SCRIPT).encode()), b"x")
        return self.silent_tcp(16), handshakes, self.tls_in_background(16), headers

    def kept_alive_clients(self, count):
        done = []
        start = time.monotonic()

        def client():
            connection = http.client.HTTPSConnection("127.0.0.1", self.https_port, context=self.tls, timeout=60)
            try:
                connection.request("GET", SCRIPT)
                connection.getresponse().read()
                done.append(time.monotonic() - start)
                time.sleep(10)  # keeps the connection open, as the app's connection pool does
            except OSError:
                pass
            connection.close()

        threads = [threading.Thread(target=client, daemon=True) for _ in range(count)]
        for thread in threads:
            thread.start()
        while len(done) < count and time.monotonic() - start < 60:
            time.sleep(0.01)
        return "%d of %d answered, the last after %.2f s" % (len(done), count, max(done) if done else float("nan"))

    def pipelined(self, connection, count):
        request = ("GET %s HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n" % SCRIPT).encode()
        start = time.monotonic()
        connection.sendall(request * count)
        connection.settimeout(10)
        received = b""
        ending = "silent for 10 s"
        try:
            while True:
                chunk = connection.recv(65536)
                if not chunk:
                    ending = "closed by the server after %.1f s" % (time.monotonic() - start)
                    break
                received += chunk
        except socket.timeout:
            pass
        except OSError as error:
            ending = "reset (%s)" % error
        connection.close()
        return "%d of %d answered, then %s" % (received.count(b"HTTP/1.1 "), count, ending)

    def trickle_cut(self):
        connection = self.tls_socket()
        start = time.monotonic()
        connection.sendall(("GET %s HTTP/1.1\r\n" % SCRIPT).encode())
        connection.settimeout(0.1)
        while time.monotonic() - start < 30:
            try:
                if not connection.recv(65536):
                    return "closed after %.2f s" % (time.monotonic() - start)
            except socket.timeout:
                pass
            except OSError as error:
                return "cut after %.2f s (%s)" % (time.monotonic() - start, error)
            try:
                connection.sendall(b"X")
            except OSError as error:
                return "cut after %.2f s (%s)" % (time.monotonic() - start, error)
        connection.close()
        return "still open after 30 s"


def main():
    if len(sys.argv) != 2:
        raise SystemExit("usage: slow-clients.py path/to/tarnelo-devserver")
    with tempfile.TemporaryDirectory() as data_dir:
        server, https_port, http_port, ca_file = start_server(sys.argv[1], data_dir)
        try:
            probe = Prober(https_port, http_port, ca_file)
            print("normal request, nothing else open:", probe.latency_while(), flush=True)
            print("with 8 silent TCP connections:", probe.latency_while(probe.silent_tcp(8)), flush=True)
            print("with 16 half-open TLS connections:", probe.latency_while(probe.silent_tcp(16)), flush=True)
            print("with 64 slow connections (16 half-open TLS, 16 trickling a handshake, 16 silent after the handshake, 16 trickling headers):",
                  probe.latency_while(*probe.mixed_slow()), flush=True)
            time.sleep(6)  # lets the slow ones run out
            print("100 kept-alive clients:", probe.kept_alive_clients(100), flush=True)
            time.sleep(11)
            print("50 pipelined over HTTPS:", probe.pipelined(probe.tls_socket(), 50), flush=True)
            print("50 pipelined over HTTP:", probe.pipelined(socket.create_connection(("127.0.0.1", http_port)), 50), flush=True)
            print("trickled headers:", probe.trickle_cut(), flush=True)
            slow = probe.mixed_slow()
            time.sleep(1)
            start = time.monotonic()
            server.terminate()
            try:
                server.wait(30)
                print("SIGTERM beside 64 slow connections: exited after %.2f s" % (time.monotonic() - start), flush=True)
            except subprocess.TimeoutExpired:
                print("SIGTERM beside 64 slow connections: still running after 30 s", flush=True)
            for group in slow:
                group.close()
        finally:
            server.kill()
            server.wait(10)


if __name__ == "__main__":
    main()
