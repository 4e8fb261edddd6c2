#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""ftp-server.py PORT DIRECTORY: serves the directory on the loopback interface, read-only, to anybody.
It says "listening" once it does."""
import logging
import sys

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer


class Handler(FTPHandler):
    authorizer = DummyAuthorizer()


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(f"usage: {sys.argv[0]} PORT DIRECTORY")
    logging.basicConfig(level=logging.ERROR)
    Handler.authorizer.add_anonymous(sys.argv[2])
    server = FTPServer(("127.0.0.1", int(sys.argv[1])), Handler)
    print("listening", flush=True)
    server.serve_forever()
