#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""ask.py ANSWER COMMAND...: runs COMMAND on a terminal of its own, types ANSWER when it asks for a
password, and prints what the terminal showed. "^C" is the interrupt key. Exit code 1 when there was
no question, when the typed text was shown, or when the terminal is left without echo; else the
command's own, or 128 plus the signal that ended it."""
import fcntl
import os
import pty
import select
import sys
import termios

answer = b"\x03" if sys.argv[1] == "^C" else sys.argv[1].encode() + b"\n"
terminal, keep = pty.openpty()
pid = os.fork()
if pid == 0:
    os.setsid()
    fcntl.ioctl(keep, termios.TIOCSCTTY, 0)
    for stream in range(3):
        os.dup2(keep, stream)
    os.execvp(sys.argv[2], sys.argv[2:])
shown = b""


def read_until(wanted):
    global shown
    while wanted is None or wanted not in shown:
        if not select.select([terminal], [], [], 20)[0]:
            sys.exit("nothing came: " + repr(shown))
        try:
            piece = os.read(terminal, 4096)
        except OSError:
            return
        if not piece:
            return
        shown += piece


read_until(b"Password of ")
if b"Password of " not in shown:
    sys.exit("no question: " + repr(shown))
silent = not termios.tcgetattr(keep)[3] & termios.ECHO
os.write(terminal, answer)
done = 0
while not done:
    done, status = os.waitpid(pid, os.WNOHANG)
    if select.select([terminal], [], [], 0.05)[0]:
        shown += os.read(terminal, 4096)
while select.select([terminal], [], [], 0)[0]:
    shown += os.read(terminal, 4096)
echoes = termios.tcgetattr(keep)[3] & termios.ECHO
sys.stdout.buffer.write(shown)
typed = answer.strip(b"\x03\n")
if not silent or not echoes or (typed and typed in shown):
    sys.exit("the terminal: " + repr((silent, echoes, shown)))
sys.exit(os.WEXITSTATUS(status) if os.WIFEXITED(status) else 128 + os.WTERMSIG(status))
