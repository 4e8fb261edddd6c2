# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""An FTP server that does as the script says whose file name is the argument (FtpServers.h)."""

import json
import logging
import os
import sys
import time

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.filesystems import AbstractedFS
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer

with open(sys.argv[1], encoding="utf-8") as script_file:
    SCRIPT = json.load(script_file)
ROOT = SCRIPT["root"]
REFUSE = SCRIPT.get("refuse", {})
STALL = SCRIPT.get("stall", [])
DROP = SCRIPT.get("drop", [])
CUT = SCRIPT.get("cut")
LOG = os.open(SCRIPT["log"], os.O_WRONLY | os.O_CREAT | os.O_APPEND, 0o644)


class FileSystem(AbstractedFS):
    def format_list(self, basedir, listing, ignore_err=True):
        if SCRIPT.get("listing") is not None:
            yield SCRIPT["listing"].encode("latin-1")
            return
        if not SCRIPT.get("dos"):
            yield from super().format_list(basedir, listing, ignore_err)
            return
        for name in listing:
            status = os.stat(os.path.join(basedir, name))
            day = time.strftime("%m-%d-%y  %I:%M%p", time.gmtime(status.st_mtime))
            is_dir = os.path.isdir(os.path.join(basedir, name))
            size = "<DIR>         " if is_dir else f"{status.st_size:>14}"
            yield f"{day}       {size} {name}\r\n".encode("utf-8", "surrogateescape")


class Handler(FTPHandler):
    abstracted_fs = FileSystem
    unicode_errors = "surrogateescape"
    auth_failed_timeout = 0
    max_login_attempts = 100
    use_sendfile = False
    banner = "ready"

    def push(self, s):
        # FTPHandler encodes strictly; names need not be UTF-8.
        super(FTPHandler, self).push(s.encode("utf-8", "surrogateescape"))

    def push_dtp_data(self, data, isproducer=False, file=None, cmd=None):
        if "DATA" in STALL or "DATA" in DROP:
            self.respond("150 It begins.")
            if "DATA" in DROP:
                self.close_when_done()
        elif file is not None and CUT is not None:
            super().push_dtp_data(file.read(CUT), cmd=cmd)
            file.close()
        else:
            super().push_dtp_data(data, isproducer, file, cmd)

    def handle(self):
        os.write(LOG, b"CONNECT\n")
        if not self.scripted("CONNECT"):
            super().handle()

    def pre_process_command(self, line, cmd, arg):
        os.write(LOG, line.encode("utf-8", "surrogateescape") + b"\n")
        if "delay" in SCRIPT:
            self.ioloop.call_later(SCRIPT["delay"] / 1000, self.answer, line, cmd, arg)
        else:
            self.answer(line, cmd, arg)

    def answer(self, line, cmd, arg):
        if not self.scripted(cmd):
            super().pre_process_command(line, cmd, arg)

    def scripted(self, step):
        if step in DROP:
            self.close()
        elif step in REFUSE:
            # Not respond(): it knows only a part of what servers say.
            self.push(REFUSE[step] + "\r\n")
        elif step not in STALL:
            return False
        return True


def main():
    logging.basicConfig(level=logging.WARNING)
    authorizer = DummyAuthorizer()
    home = ROOT if SCRIPT.get("chroot", True) else "/"
    login = SCRIPT.get("login") or ("/" if SCRIPT.get("chroot", True) else ROOT)

    class LoggedIn(Handler):
        def on_login(self, username):
            self.fs.cwd = login

    for user, password in SCRIPT.get("users", {}).items():
        authorizer.add_user(user, password, home, perm="elr")
    if SCRIPT.get("anonymous", True):
        authorizer.add_anonymous(home, perm="elr")
    LoggedIn.authorizer = authorizer
    server = FTPServer((SCRIPT["address"], SCRIPT["port"]), LoggedIn)
    with open(SCRIPT["ready"], "w", encoding="ascii"):
        pass
    server.serve_forever()


if __name__ == "__main__":
    main()
