#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""kills.py RAVELCTL WORK_DIR COUNT [SEED]: ends RAVELCTL so often at random moments, by SIGKILL,
SIGTERM, SIGHUP or the end of its terminal, while it refreshes, downloads, unpacks and installs, or
changes its settings. Afterwards the settings are whole, an installer has run to its end, the
package database is sound at once or after what is advised, the next start knows, and nothing is
left in the temporary directory."""
import glob
import json
import os
import pty
import random
import select
import shutil
import signal
import subprocess
import sys
import time

ravelctl, work, count = sys.argv[1], sys.argv[2], int(sys.argv[3])
seed = int(sys.argv[4]) if len(sys.argv) > 4 and sys.argv[4] else random.SystemRandom().randrange(10**9)
root, definitions, temporary = (os.path.join(work, name) for name in ("root", "definitions", "tmp"))
chance = random.Random(seed)
packages = ["tc-audio", "tc-network"]
locations = ["http://one.example/", "http://two.example/"]
environment = dict(os.environ, DPKG_ROOT=root, DPKG_FORCE="not-root,script-chrootless,bad-path", HOME=root)


def command(*arguments):
    return [ravelctl, "--root", root, "--definitions", definitions, *arguments]


def answer(*arguments):
    done = subprocess.run(command("--json", *arguments), stdin=subprocess.DEVNULL, capture_output=True, timeout=60)
    return json.loads(done.stdout)


def dpkg(*arguments):
    return subprocess.run(["dpkg", *arguments], env=environment, stdin=subprocess.DEVNULL,
                          capture_output=True, timeout=60)


def fresh():
    shutil.rmtree(root)
    subprocess.run(["cp", "-a", os.path.join(work, "root.saved"), root], check=True)
    subprocess.run(command("location", "plain", plain), stdin=subprocess.DEVNULL, check=True, capture_output=True)


def start(arguments, on_terminal):
    """The process, and its terminal."""
    if not on_terminal:
        return subprocess.Popen(command(*arguments), stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                start_new_session=True), None
    pid, terminal = pty.fork()
    if pid == 0:
        os.execv(ravelctl, command(*arguments))
    return pid, terminal


def drain(terminal, seconds):
    """What a terminal does, for so long or until nobody writes any more."""

    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if select.select([terminal], [], [], max(0, end - time.monotonic()))[0]:
            try:
                if not os.read(terminal, 65536):
                    return
            except OSError:
                return


def end_at(arguments, seconds, how):
    """Whether the program was ended before it was done."""
    on_terminal = how == "terminal"
    process, terminal = start(arguments, on_terminal)
    if on_terminal:
        drain(terminal, seconds)
        os.close(terminal)
        status = os.waitpid(process, 0)[1]
        return not (os.WIFEXITED(status) and os.WEXITSTATUS(status) == 0)
    try:
        process.wait(seconds)
        return False
    except subprocess.TimeoutExpired:
        process.send_signal(how)
        # Other signals than SIGKILL wait for a running installer.
        process.wait(60)
        return process.returncode != 0


def last_run():
    """What the next start knows, once it has ended."""
    for _ in range(6000):
        run = answer("status")["lastRun"]
        if run is None or run["state"] != "running":
            return run
        time.sleep(0.01)
    sys.exit("the installer never ended")


plain = answer("repos")["repositories"][0]["location"]


def timed():
    fresh()
    began = time.monotonic()
    subprocess.run(command("install", "plain", *packages), stdin=subprocess.DEVNULL, check=True, capture_output=True)
    return time.monotonic() - began


# The first one waits for the disk.
duration = min(timed(), timed())
wrong = ended = outlived = repaired = 0
for number in range(count):
    how = chance.choice([signal.SIGKILL, signal.SIGKILL, signal.SIGTERM, signal.SIGHUP, "terminal"])
    when = chance.uniform(0, duration * 1.1)
    settings = chance.random() < 0.1
    faults = []
    fresh()
    if settings:
        before, after = locations[number % 2], locations[1 - number % 2]
        subprocess.run(command("location", "plain", before), check=True, capture_output=True)
        ended += end_at(["location", "plain", after], chance.uniform(0, 0.05), how)
        if answer("repos")["repositories"][0]["location"] not in (before, after):
            faults.append("the setting is neither the old nor the new one")
    else:
        ended += end_at(["install", "plain", *packages], when, how)
        run = last_run()
        outlived += run is not None
        if run and (run["state"] != "exited" or run["exitCode"] != 0):
            faults.append("the installer ended as %s" % run)
        if dpkg("--audit").stdout:
            repaired += 1
            dpkg("--configure", "-a")
        if dpkg("--audit").stdout:
            faults.append("the package database is broken")
        if answer("repos")["repositories"][0]["location"] != plain:
            faults.append("the settings are lost")
        done = subprocess.run(command("install", "plain", *packages), stdin=subprocess.DEVNULL,
                              capture_output=True, timeout=60)
        if done.returncode != 0:
            faults.append("the next installation failed: %s" % done.stderr.decode())
        if run and b"went on without its program" not in done.stderr:
            faults.append("the next start says nothing: %s" % done.stderr.decode())
        if answer("status")["lastRun"] is not None:
            faults.append("it is said again")
    left = glob.glob(os.path.join(temporary, "plume-*"))
    if left:
        faults.append("left behind: %s" % left)
    for fault in faults:
        wrong += 1
        print("BAD  kill %d, %s after %.3f s, seed %d: %s" % (number, how, when, seed, fault))
print("seed %d: %d kills, %d in time, %d outlived by their installer, %d repaired, %d wrong"
      % (seed, count, ended, outlived, repaired, wrong))
sys.exit(1 if wrong else 0)
