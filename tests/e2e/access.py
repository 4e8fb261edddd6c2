#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""access.py HOST ROOT: installs updates as somebody would who neither sees the screen nor uses a mouse.

Knows the program only through the accessibility bus, as a screen reader does, and answers it with
keys alone. Each page and dialog on the way is looked through: what can be focused or changed has a
name, a role and the states of that role, and no markup is spoken. One line a step; the exit code is
1 when a step failed.
"""
import re
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  (the version comes first)

PATIENCE = 15  # seconds for one step

State = Atspi.StateType
KEYS = {"Tab": 0xFF09, "Space": 0x20, "Return": 0xFF0D, "Down": 0xFF54, "Up": 0xFF52,
        "Home": 0xFF50, "End": 0xFF57, "Escape": 0xFF1B}
# What a person acts on. Lists and tables are made of their items and cells.
INTERACTIVE = {"push button", "check box", "radio button", "text", "password text", "combo box",
               "spin button", "slider", "menu item", "list item", "table cell", "table column header",
               "column header", "toggle button", "page tab", "link"}
# Roles that say nothing; a focusable object must not have one.
MUTE = {"unknown", "invalid", "filler", "redundant object"}
MARKUP = re.compile(r"</?[a-zA-Z][^>]*>|&(?:amp|lt|gt|nbsp|#\d+);|[A-Za-z]?&[A-Za-z]")


class Failure(Exception):
    pass


def require(condition, reason):
    if not condition:
        raise Failure(reason)


def listen():
    """Takes in the events that have come."""
    while GLib.MainContext.default().iteration(False):
        pass


def holds_within(seconds, condition):
    """What the condition is at last; it is asked after each event, and where none tells, at times."""
    end = time.monotonic() + seconds
    tick = GLib.timeout_add(50, lambda: True)
    try:
        while True:
            try:
                listen()
                found = condition()
                if found:
                    return found
            except GLib.Error:
                pass  # an object went away while it was asked
            if time.monotonic() > end:
                return None
            GLib.MainContext.default().iteration(True)
    finally:
        GLib.source_remove(tick)


def wait_for(condition, what):
    found = holds_within(PATIENCE, condition)
    require(found, f"no {what}")
    return found


def has(accessible, *states):
    own = accessible.get_state_set()
    return all(own.contains(state) for state in states)


def role_of(accessible):
    name = accessible.get_role_name()
    # Newer versions of the bus call it so.
    return "push button" if name == "button" else name


def shown(accessible):
    """The accessible and all that is on the screen below it, in order."""
    yield accessible
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        # Cells and menu items have no SHOWING of their own in some tables: what hides is above them.
        if child is not None and has(child, State.VISIBLE):
            yield from shown(child)


def describe(accessible):
    return f"{role_of(accessible)} '{accessible.get_name()}'"


def defects(top):
    """One line for each object that a screen reader would speak of wrongly."""
    for accessible in shown(top):
        role, name = role_of(accessible), accessible.get_name()
        spoken = name + "\n" + (accessible.get_description() or "")
        if MARKUP.search(spoken):
            yield f"markup: {describe(accessible)}: {spoken!r}"
        if has(accessible, State.FOCUSABLE) and role in MUTE and accessible.get_child_count() == 0:
            yield f"no role: {describe(accessible)}"
        if role not in INTERACTIVE:
            continue
        if not name.strip():
            yield f"no name: {role} in {describe(accessible.get_parent())}"
        if role in {"check box", "radio button", "push button", "text", "password text"}:
            if has(accessible, State.ENABLED) and not has(accessible, State.FOCUSABLE):
                yield f"out of reach of the keyboard: {describe(accessible)}"


class Access:
    def __init__(self, host, root):
        self.process = subprocess.Popen([host, "--root", root])
        self.app = None
        self.heard = None
        self.looked_at = 0
        self.listener = Atspi.EventListener.new(self.hear)
        self.listener.register("object:state-changed:focused")

    # What is there.

    def windows(self):
        return [self.app.get_child_at_index(i) for i in range(self.app.get_child_count())]

    def window(self, name):
        return next((w for w in self.windows() if w and w.get_name() == name
                     and has(w, State.SHOWING)), None)

    def dialogs(self):
        return [w for w in self.windows() if w and role_of(w) in {"dialog", "alert"}
                and has(w, State.SHOWING)]

    def hear(self, event):
        if event.detail1:
            self.heard = event.source

    def focused(self):
        """What has the focus, as the events tell: item views keep it from their own state."""
        if self.heard and role_of(self.heard) in {"table", "list"}:
            return next((a for a in shown(self.heard) if has(a, State.FOCUSED)
                         and role_of(a) in {"table cell", "list item"}), self.heard)
        return self.heard

    def find(self, role, name, top=None):
        for accessible in shown(top or self.app):
            if role_of(accessible) == role and accessible.get_name().strip() == name:
                return accessible
        return None

    def cells(self):
        """The names of the shown table's cells."""
        return [a.get_name() for a in shown(self.app) if role_of(a) == "table cell"]

    # What a person does.

    def key(self, name):
        Atspi.generate_keyboard_event(KEYS[name], None, Atspi.KeySynthType.SYM)

    def go_to(self, role, name, key="Tab"):
        """Presses the key until the focus is where it is meant to be."""
        passed = []
        for _ in range(60):
            here = wait_for(self.focused, "focus")
            if role_of(here) == role and here.get_name().strip() == name:
                return here
            passed.append(describe(here))
            self.key(key)
            # Some keys leave the focus where it is.
            holds_within(2, lambda: self.has_moved(here, passed[-1]))
        raise Failure(f"{key} does not lead to {role} '{name}': {'; '.join(passed)}")

    def has_moved(self, before, description):
        here = self.focused()
        return here and (here != before or describe(here) != description)

    def look(self):
        for top in self.windows():
            if top and has(top, State.SHOWING):
                found = list(defects(top))
                require(not found, "; ".join(found))
                self.looked_at += sum(1 for _ in shown(top))

    # The steps.

    def start(self):
        def ours():
            desktop = Atspi.get_desktop(0)
            apps = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
            return next((a for a in apps if a and a.get_name() == "ravel-host"), None)
        self.app = wait_for(ours, "program on the accessibility bus")
        wait_for(lambda: self.window("Thin Client Configuration"), "window")
        wait_for(self.focused, "focus")
        self.look()

    def open_packages(self):
        self.go_to("check box", "Packages")
        self.key("Space")
        wait_for(lambda: any(c.startswith("tc-audio") for c in self.cells()), "table of packages")
        self.look()

    def choose(self):
        """Leaves tc-audio and tc-browser chosen, the others not."""
        self.go_to("push button", "None")
        self.key("Space")
        wait_for(lambda: "tc-audio, not selected" in self.cells(), "empty choice")
        self.go_to("table cell", "tc-audio, not selected")
        self.key("Space")
        wait_for(lambda: "tc-audio, selected" in self.cells(), "choice of tc-audio")
        self.key("Down")
        self.key("Space")
        wait_for(lambda: "tc-browser, selected" in self.cells(), "choice of tc-browser")
        self.look()

    def read_details(self):
        self.go_to("push button", "Details")
        self.key("Space")
        wait_for(lambda: self.window("tc-browser"), "details of tc-browser")
        self.look()
        self.key("Escape")
        wait_for(lambda: not self.dialogs(), "end of the details")

    def install(self):
        self.go_to("push button", "Install")
        self.key("Space")
        wait_for(self.dialogs, "progress dialog")
        wait_for(lambda: self.find("push button", "Close", self.dialogs()[0]), "end of the installation")
        self.look()
        self.go_to("check box", "Show Details")
        self.key("Space")
        wait_for(lambda: "Setting up tc-browser (4.3-1)" in self.texts(self.dialogs()[0]), "output")
        self.look()
        self.go_to("push button", "Close")
        self.key("Space")
        wait_for(lambda: not self.dialogs(), "end of the progress dialog")

    def texts(self, top):
        parts = []
        for accessible in shown(top):
            if "Text" in accessible.get_interfaces():
                length = Atspi.Text.get_character_count(accessible)
                parts.append(Atspi.Text.get_text(accessible, 0, length))
        return "\n".join(parts)

    def hear_result(self):
        cells = wait_for(lambda: self.cells() if "tc-browser, not selected" in self.cells() else None,
                         "new table")
        here = wait_for(self.focused, "focus")
        require(role_of(here) == "table cell", f"the focus is on {describe(here)}")
        row = cells.index("tc-browser, not selected")
        require(cells[row + 2:row + 4] == ["4.3-1", "4.3-1"], str(cells))
        self.look()

    def other_sections(self):
        for title in ("Software images", "Service packs", "Applications"):
            self.go_to("check box", title)
            self.key("Space")
            wait_for(lambda t=title: has(self.find("check box", t), State.CHECKED), f"open '{title}'")
            self.look()

    def refuse_image(self):
        self.go_to("check box", "Software images")
        self.key("Space")
        wait_for(lambda: "tc-system, selected" in self.cells(), "table of images")
        self.go_to("push button", "Install")
        self.key("Space")
        wait_for(lambda: len(self.dialogs()) > 1, "question")
        self.look()
        # The answer that does nothing has the focus.
        self.key("Escape")
        wait_for(lambda: not self.dialogs(), "end of the question and the progress dialog")
        self.look()

    def type(self, text):
        """Types into the empty field that has the focus; each letter arrives before the next one."""
        field = self.focused()
        for number, letter in enumerate(text, 1):
            Atspi.generate_keyboard_event(ord(letter), None, Atspi.KeySynthType.SYM)
            wait_for(lambda n=number: Atspi.Text.get_character_count(field) == n, f"'{text}' in the field")

    def open_remote(self, title):
        self.go_to("check box", title)
        self.key("Space")
        wait_for(lambda: has(self.find("check box", title), State.CHECKED), f"open '{title}'")
        self.go_to("push button", "Refresh")
        self.key("Space")

    def refuse_certificate(self):
        self.open_remote("Security")
        wait_for(lambda: self.window("Certificate"), "question about the certificate")
        self.look()
        self.go_to("check box", "Show Details")
        self.key("Space")
        wait_for(lambda: "SHA256 Fingerprint:" in self.texts(self.window("Certificate")), "details")
        self.look()
        self.go_to("push button", "Reject Certificate")
        self.key("Space")
        wait_for(lambda: not self.window("Certificate"), "end of the question")
        wait_for(lambda: any("secure channel" in self.texts(d) for d in self.dialogs()), "message")
        self.look()
        self.key("Escape")
        wait_for(lambda: not self.dialogs(), "end of the message")
        wait_for(lambda: self.find("push button", "Retry"), "page of the failed retrieval")
        self.look()

    def log_in(self):
        self.open_remote("Site software")
        wait_for(lambda: self.find("password text", "Password:"), "login")
        wait_for(self.dialogs, "message that a login is required")
        self.look()
        self.key("Escape")
        wait_for(lambda: not self.dialogs(), "end of the message")
        self.go_to("text", "User Name:")
        self.type("demo")
        self.go_to("password text", "Password:")
        self.type("demo")
        self.key("Return")
        wait_for(lambda: "tc-planner, selected" in self.cells(), "table behind the login")
        self.look()

    def other_pages(self):
        pages = self.find("list", "Pages")
        require(pages, "there is no list of pages")
        names = [pages.get_child_at_index(i).get_name() for i in range(pages.get_child_count())]
        self.go_to("list item", "Updates")
        self.key("Home")
        for name in names:
            wait_for(lambda n=name: self.focused().get_name() == n, f"page '{name}'")
            self.look()
            self.key("Down")

    def change_options(self):
        """On the options page, where the last step has ended."""
        self.go_to("check box", "Networking Proxies")
        self.key("Space")
        wait_for(lambda: has(self.find("check box", "Networking Proxies"), State.CHECKED), "proxies")
        self.look()
        self.go_to("radio button", "No proxies")
        self.key("Down")
        wait_for(lambda: has(self.find("radio button", "Manual Proxy Configuration:"), State.CHECKED),
                 "choice of manual proxies")
        self.look()
        self.go_to("push button", "OK")

    def run(self):
        steps = [
            ("the program is on the accessibility bus", self.start),
            ("a section is opened", self.open_packages),
            ("two packages are chosen", self.choose),
            ("the details are read", self.read_details),
            ("they are installed", self.install),
            ("the new versions are heard", self.hear_result),
            ("the other sections speak", self.other_sections),
            ("an image is refused", self.refuse_image),
            ("a certificate is read and refused", self.refuse_certificate),
            ("a login is typed", self.log_in),
            ("the other pages speak", self.other_pages),
            ("the options are changed", self.change_options),
        ]
        try:
            for what, step in steps:
                try:
                    step()
                except Failure as failure:
                    print(f"FAIL {what}: {failure}", flush=True)
                    return 1
                print(f"ok   {what}", flush=True)
            print(f"ok   {self.looked_at} objects were looked at", flush=True)
            return 0
        finally:
            self.process.terminate()
            self.process.wait(PATIENCE)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(f"usage: {sys.argv[0]} HOST ROOT")
    Atspi.init()
    sys.exit(Access(sys.argv[1], sys.argv[2]).run())
