# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""FTP servers that do as scripts say (FtpServers.h): a process each, from one start of Python.

Requests come on the standard input, a line each, and get a line of answer:
    start FILE      the process of the server that does as the script FILE says, 0 if it cannot
    stop PROCESS    the process, once it has ended
"""

import json
import logging
import os
import signal
import sys
import time

from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.filesystems import AbstractedFS
from pyftpdlib.handlers import FTPHandler
from pyftpdlib.servers import FTPServer

# Of this process; empty in the one that starts the others.
SCRIPT = {}


def log(line):
    with open(SCRIPT["log"], "ab", buffering=0) as log_file:
        log_file.write(line + b"\n")


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
        if "DATA" in SCRIPT["stall"] or "DATA" in SCRIPT["drop"]:
            self.respond("150 It begins.")
            if "DATA" in SCRIPT["drop"]:
                self.close_when_done()
        elif file is not None and "cut" in SCRIPT:
            super().push_dtp_data(file.read(SCRIPT["cut"]), cmd=cmd)
            file.close()
        else:
            super().push_dtp_data(data, isproducer, file, cmd)

    def handle(self):
        log(b"CONNECT")
        if not self.scripted("CONNECT"):
            super().handle()

    def pre_process_command(self, line, cmd, arg):
        log(line.encode("utf-8", "surrogateescape"))
        if "delay" in SCRIPT:
            self.ioloop.call_later(SCRIPT["delay"] / 1000, self.answer, line, cmd, arg)
        else:
            self.answer(line, cmd, arg)

    def answer(self, line, cmd, arg):
        if not self.scripted(cmd):
            super().pre_process_command(line, cmd, arg)

    def scripted(self, step):
        if step in SCRIPT["drop"]:
            self.close()
        elif step in SCRIPT["refuse"]:
            # Not respond(): it knows only a part of what servers say.
            self.push(SCRIPT["refuse"][step] + "\r\n")
        elif step not in SCRIPT["stall"]:
            return False
        return True


def listen():
    logging.basicConfig(level=logging.WARNING)
    authorizer = DummyAuthorizer()
    is_jailed = SCRIPT.get("chroot", True)
    home = SCRIPT["root"] if is_jailed else "/"
    login = SCRIPT.get("login") or ("/" if is_jailed else SCRIPT["root"])

    class LoggedIn(Handler):
        def on_login(self, username):
            self.fs.cwd = login

    for user, password in SCRIPT.get("users", {}).items():
        authorizer.add_user(user, password, home, perm="elr")
    if SCRIPT.get("anonymous", True):
        authorizer.add_anonymous(home, perm="elr")
    LoggedIn.authorizer = authorizer
    return FTPServer((SCRIPT["address"], SCRIPT["port"]), LoggedIn)


def serve(script, ready):
    """In a process of its own: returns only if it fails."""
    signal.signal(signal.SIGTERM, signal.SIG_DFL)
    with open(script, encoding="utf-8") as script_file:
        SCRIPT.update({"refuse": {}, "stall": [], "drop": []} | json.load(script_file))
    output = os.open(SCRIPT["output"], os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o644)
    nothing = os.open(os.devnull, os.O_RDONLY)
    for source, standard in ((nothing, 0), (output, 1), (output, 2)):
        os.dup2(source, standard)
    server = listen()
    os.write(ready, b"1")
    os.close(ready)
    server.serve_forever()


def start(script):
    listens, ready = os.pipe()
    process = os.fork()
    if process == 0:
        try:
            serve(script, ready)
        except OSError as error:
            os.write(2, f"{error}\n".encode())
        finally:
            os._exit(1)
    os.close(ready)
    is_listening = os.read(listens, 1) != b""
    os.close(listens)
    if not is_listening:
        stop(process)
        return 0
    return process


def stop(process):
    os.kill(process, signal.SIGKILL)
    os.waitpid(process, 0)
    return process


def end(*_):
    """The servers are of this process's group."""
    os.killpg(0, signal.SIGKILL)


def main():
    signal.signal(signal.SIGTERM, end)
    for line in sys.stdin:
        request, argument = line.rstrip("\n").split(" ", 1)
        print(start(argument) if request == "start" else stop(int(argument)), flush=True)
    end()


if __name__ == "__main__":
    main()
