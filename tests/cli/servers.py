#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""servers.py DIRECTORY CERTIFICATE LOG: serves DIRECTORY on the loopback interface in every way
that the scripts need, until standard input ends. Prints one "NAME=PORT" line for each server and
closes its output.

plain   HTTP
login   HTTP, for user "anna" with the password "secret"
tls     HTTPS with CERTIFICATE, a PEM file with its key
silent  takes connections and never answers
part    HTTP, but no file whose name holds "tc-audio" and ends in ".xml"
ftp     FTP, for the same user
noaudio HTTP, but not the package of tc-audio
nodebs  HTTP, but no package
noimage HTTP, but no image
short   HTTP, but connections are cut in the middle of packages
slow    HTTP, but packages stop in their middle for as long as the client waits
proxy   an HTTP proxy for the same user, which answers for every server
proxyopen  the same for everybody

Every request's first line goes to LOG.
"""
import base64
import functools
import http.server
import os
import pathlib
import socket
import ssl
import sys
import threading

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer

DIRECTORY, CERTIFICATE, LOG = sys.argv[1:4]
SECRET = "Basic " + base64.b64encode(b"anna:secret").decode()


class Handler(http.server.SimpleHTTPRequestHandler):
    name = "plain"

    def send_head(self):
        with open(LOG, "a", encoding="utf-8") as log:
            log.write(f"{self.name} {self.command} {self.path}\n")
        if self.name == "login" and self.headers.get("Authorization") != SECRET:
            self.send_response(401)
            self.send_header("WWW-Authenticate", 'Basic realm="updates"')
            self.send_header("Content-Length", "0")
            self.end_headers()
            return None
        if self.name == "part" and "tc-audio" in self.path and self.path.endswith(".xml"):
            self.send_error(404)
            return None
        if self.name == "noimage" and self.path.endswith(".dd.gz"):
            self.send_error(404)
            return None
        if self.path.endswith(".deb"):
            if self.name == "nodebs" or (self.name == "noaudio" and "tc-audio" in self.path):
                self.send_error(404)
                return None
            if self.name in ("short", "slow"):
                self.send_half()
                return None
        if self.name in ("proxy", "proxyopen"):
            if self.name == "proxy" and self.headers.get("Proxy-Authorization") != SECRET:
                self.send_response(407)
                self.send_header("Proxy-Authenticate", 'Basic realm="proxy"')
                self.send_header("Content-Length", "0")
                self.end_headers()
                return None
            self.path = "/" + self.path.split("/", 3)[3]
        return super().send_head()

    def send_half(self):
        data = pathlib.Path(self.translate_path(self.path)).read_bytes()
        self.send_response(200)
        self.send_header("Content-Length", str(len(data)))
        self.end_headers()
        self.wfile.write(data[: len(data) // 2])
        self.wfile.flush()
        if self.name == "slow":
            self.connection.settimeout(60)
            self.connection.recv(1)
        self.close_connection = True

    def log_message(self, *_):
        pass


def serve(name, certificate=None):
    handler = functools.partial(type(name, (Handler,), {"name": name}), directory=DIRECTORY)
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
    if certificate:
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(certificate)
        server.socket = context.wrap_socket(server.socket, server_side=True,
                                            do_handshake_on_connect=False)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    print(f"{name}={server.server_address[1]}", flush=True)


pathlib.Path(LOG).touch()
serve("plain")
serve("login")
serve("part")
for kind in ("noaudio", "nodebs", "noimage", "short", "slow", "proxy", "proxyopen"):
    serve(kind)
serve("tls", CERTIFICATE)
FTPHandler.authorizer = DummyAuthorizer()
FTPHandler.authorizer.add_user("anna", "secret", DIRECTORY)
FTPHandler.auth_failed_timeout = 0
ftp = FTPServer(("127.0.0.1", 0), FTPHandler)
threading.Thread(target=ftp.serve_forever, daemon=True).start()
print(f"ftp={ftp.address[1]}", flush=True)
silent = socket.create_server(("127.0.0.1", 0))
print(f"silent={silent.getsockname()[1]}", flush=True)
# All are there.
os.close(1)
sys.stdin.read()
