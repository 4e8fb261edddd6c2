#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""terminal.py COLUMNS QUESTION ANSWER COMMAND...: runs COMMAND on a terminal of its own that is so
wide, types ANSWER when it shows QUESTION ("" for no question; "^C" is the interrupt key, "^H" the
end of the terminal, after which it prints "[closed]"), and prints what the terminal shows. The exit
code is the command's own, or 128 plus the signal that ended it; 1 when there was no such question."""
import fcntl
import os
import pty
import select
import struct
import sys
import termios

def tell(text):
    sys.stdout.buffer.write(text)
    sys.stdout.buffer.flush()


def take_in(sources):
    """Reads what the terminal shows; what is left of the sources."""
    global shown
    try:
        piece = os.read(terminal, 4096)
    except OSError:
        piece = b""
    shown += piece
    tell(piece)
    return sources if piece else [source for source in sources if source != terminal]


columns, question, answer = int(sys.argv[1]), sys.argv[2].encode(), sys.argv[3]
terminal, keep = pty.openpty()
fcntl.ioctl(keep, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
pid = os.fork()
if pid == 0:
    os.close(terminal)
    os.setsid()
    fcntl.ioctl(keep, termios.TIOCSCTTY, 0)
    for stream in range(3):
        os.dup2(keep, stream)
    os.close(keep)
    os.execvp(sys.argv[4], sys.argv[4:])
os.close(keep)
shown = b""
asked = not question
ended = os.pidfd_open(pid)
sources = [terminal, ended]
while ended in sources:
    for source in select.select(sources, [], [])[0]:
        if source == ended:
            sources.remove(ended)
        else:
            sources = take_in(sources)
    if not asked and question in shown:
        asked = True
        if answer == "^H":
            os.close(terminal)
            sources.remove(terminal)
            tell(b"[closed]\n")
        else:
            os.write(terminal, b"\x03" if answer == "^C" else answer.encode() + b"\n")
while terminal in sources and select.select([terminal], [], [], 0)[0]:
    sources = take_in(sources)
status = os.waitpid(pid, 0)[1]
if not asked:
    sys.exit("no question")
sys.exit(os.WEXITSTATUS(status) if os.WIFEXITED(status) else 128 + os.WTERMSIG(status))
