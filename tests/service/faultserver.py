#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""HTTPS servers on loopback that misbehave the ways a real network can.

https://127.0.0.1:PORT/<behaviour> picks an answer_ method. The other host,
127.0.0.2, answers "[]" and prints "other-host <target>" for each request.
Once both listen, "ready <port> <other-port> <certificate file>" is printed.
They stop when standard input closes, so they never outlive their test.
"""

import http.server
import os
import socket
import ssl
import subprocess
import sys
import tempfile
import threading
import time

BLOCK = b" " * 65536
BLOCKS_IN_BIG_BODY = 800  # 50 MiB


class FaultHandler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    other_port = 0

    def log_message(self, *args):
        pass

    def start_answer(self, status=200, **headers):
        self.send_response(status)
        for name, value in headers.items():
            self.send_header(name.replace("_", "-"), value)
        self.end_headers()

    def do_GET(self):
        behaviour, _, rest = self.path.lstrip("/").partition("/")
        try:
            getattr(self, "answer_" + behaviour)(rest)
        except OSError:
            # The client gave up, which is what these answers are for.
            self.close_connection = True

    def answer_ok(self, _rest):
        self.start_answer(Content_Type="application/json", Content_Length="2")
        self.wfile.write(b"[]")

    def answer_hop(self, rest):
        self.start_answer(302, Location="/ok/" + rest, Content_Length="0")

    def answer_away(self, rest):
        self.start_answer(302, Location="https://127.0.0.2:%d/away/%s" % (self.other_port, rest), Content_Length="0")

    def answer_trickle(self, _rest):
        self.close_connection = True
        self.start_answer(Content_Length="1000")
        while True:
            self.wfile.write(b" ")
            time.sleep(0.5)

    def answer_stall(self, _rest):
        self.close_connection = True
        while self.connection.recv(1):
            pass

    def answer_cut(self, _rest):
        """Announces 1000 bytes, sends 100, then ends the TCP stream without a TLS close_notify."""
        self.close_connection = True
        self.start_answer(Content_Length="1000")
        self.wfile.write(b"[" + b" " * 99)
        self.connection.shutdown(socket.SHUT_WR)

    def answer_big(self, _rest):
        self.start_answer(Content_Length=str(BLOCKS_IN_BIG_BODY * len(BLOCK)))
        for _ in range(BLOCKS_IN_BIG_BODY):
            self.wfile.write(BLOCK)

    def answer_chunked(self, _rest):
        self.start_answer(Transfer_Encoding="chunked")
        for _ in range(BLOCKS_IN_BIG_BODY):
            self.wfile.write(b"%x\r\n%s\r\n" % (len(BLOCK), BLOCK))
        self.wfile.write(b"0\r\n\r\n")


class OtherHostHandler(FaultHandler):
    def do_GET(self):
        print("other-host", self.path, flush=True)
        self.answer_ok("")


def serve(address, handler, cert, key):
    server = http.server.ThreadingHTTPServer((address, 0), handler)
    server.daemon_threads = True
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(cert, key)
    server.socket = context.wrap_socket(server.socket, server_side=True)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return server.server_address[1]


with tempfile.TemporaryDirectory() as directory:
    cert = os.path.join(directory, "cert.pem")
    key = os.path.join(directory, "key.pem")
    subprocess.run(
        ["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-days", "1", "-subj", "/CN=127.0.0.1",
         "-addext", "subjectAltName=IP:127.0.0.1,IP:127.0.0.2", "-keyout", key, "-out", cert],
        check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    FaultHandler.other_port = serve("127.0.0.2", OtherHostHandler, cert, key)
    port = serve("127.0.0.1", FaultHandler, cert, key)
    print("ready", port, FaultHandler.other_port, cert, flush=True)
    sys.stdin.read()
