# SPDX-License-Identifier: LGPL-2.1-or-later
"""What a screen reader hears of the studio: test_accessibility.py <mvcalendar-studio>

Starts the program on a screen and a session bus of its own and walks the tree that it tells assistive technology.
Every control that takes the keyboard has a name, on the start page, beside the page and in every dialog, and the days of the page are there with their dates. Dialogs are opened and closed as assistive technology does it.
"""

import os
import re
import subprocess
import sys
import tempfile
import time

CONTROLS = {"push button", "toggle button", "check box", "radio button", "combo box", "spin button", "slider", "text",
            "password text", "list", "table", "tree", "page tab", "menu item", "check menu item", "radio menu item",
            "link", "entry", "calendar", "layered pane", "canvas"}
# parts of a control that has the name
PARTS = {"combo box": {"list", "text", "entry"}, "spin button": {"text", "entry"}, "table": {"text"}}
DAY = re.compile(r"\b(Montag|Dienstag|Mittwoch|Donnerstag|Freitag|Samstag|Sonntag), \d{1,2}\. \w+ \d{4}")
START_SECONDS = 60
ANSWER_SECONDS = 20
# what opens a dialog, and what closes it
DIALOGS = {"Neu …": "Abbrechen", "Layout wählen …": "Abbrechen", "Papier und Zeitraum …": "Abbrechen",
           "Gruppen und Alter …": "Schließen", "Vor dem Druck prüfen …": "Schließen", "Als PDF exportieren …": "Abbrechen", "Als Bilder exportieren …": "Abbrechen",
           "Einstellungen …": "Abbrechen", "Anleitung und Tastenkürzel": "Schließen", "Über MvCalendar": "Schließen",
           "Eintrag hinzufügen...": "Abbrechen"}


def on_screen_and_bus(arguments):
    reader, writer = os.pipe()
    with tempfile.TemporaryDirectory() as home:
        # the screen says its number when it can be used, and stays as it is when a program leaves it
        screen = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x800x24", "-noreset",
                                   "-nolisten", "tcp"], pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        try:
            with os.fdopen(reader) as numbers:
                number = numbers.readline().strip()
            if not number:
                print("there is no screen: Xvfb has ended")
                return 1
            environment = dict(os.environ, DISPLAY=f":{number}", QT_QPA_PLATFORM="xcb",
                               QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LC_ALL="C.UTF-8", MVCALENDAR_LANGUAGE="de",
                               XDG_CONFIG_HOME=f"{home}/config", XDG_DATA_HOME=f"{home}/data", XDG_RUNTIME_DIR=home,
                               MVCALENDAR_DATA=f"{home}/data/mvcalendar")
            command = ["dbus-run-session", "--", sys.executable, __file__, "--inside", *arguments]
            return subprocess.run(command, env=environment, timeout=240).returncode
        finally:
            screen.terminate()
            screen.wait()


class Walk:
    """The program's tree, read once."""

    def __init__(self, application):
        self.nameless = []
        self.named = {}  # role -> names
        self._visit(application, [], 0)

    def _visit(self, item, path, depth):
        role, name = item.getRoleName(), (item.name or "").strip()
        here = path + [f"{role} '{name}'"]
        self.named.setdefault(role, []).append(name)
        parent_role = path[-1].split(" '")[0] if path else ""
        is_nameless = not name or role == "combo box" and not self._is_explained(item)
        if role in CONTROLS and is_nameless and self._takes_keyboard(item) and role not in PARTS.get(parent_role, ()):
            self.nameless.append(" > ".join(here[-4:]))
        if depth < 24:
            for index in range(min(item.childCount, 400)):
                child = item.getChildAtIndex(index)
                if child is not None:
                    self._visit(child, here, depth + 1)

    @staticmethod
    def _is_explained(item):
        """Boxes tell their value as their name: what it is of stands beside them."""
        return bool((item.description or "").strip()) or len(item.getRelationSet()) > 0

    @staticmethod
    def _takes_keyboard(item):
        import pyatspi
        states = item.getState()
        return states.contains(pyatspi.STATE_FOCUSABLE) and states.contains(pyatspi.STATE_SHOWING)


def press(item):
    action = item.queryAction()
    names = [action.getName(index).lower() for index in range(action.nActions)]
    for wanted in ("press", "trigger", "toggle"):
        if wanted in names:
            return action.doAction(names.index(wanted))
    return False


def descendants(item, role, name, depth=0):
    if item.getRoleName() == role and (item.name or "").strip() == name:
        yield item
    if depth < 24:
        for index in range(min(item.childCount, 400)):
            child = item.getChildAtIndex(index)
            if child is not None:
                yield from descendants(child, role, name, depth + 1)


def steadily(ask):
    """What was asked once more when an object went while it was asked about."""
    from gi.repository import GLib
    for _ in range(10):
        try:
            return ask()
        except GLib.GError:
            time.sleep(0.2)
    return ask()


def press_first(item, name, roles=("push button", "toggle button", "check box", "menu item")):
    found = steadily(lambda: [next(descendants(item, role, name), None) for role in roles])
    return any(press(one) for one in found if one is not None)


def wait_for(condition):
    end = time.monotonic() + ANSWER_SECONDS
    while time.monotonic() < end:
        answer = condition()
        if answer:
            return answer
        time.sleep(0.1)
    return None


def windows(application):
    """What shows beside the main window."""
    import pyatspi

    def ask():
        children = [application.getChildAtIndex(index) for index in range(application.childCount)]
        return [child for child in children if child is not None and child.getRoleName() in ("dialog", "alert")
                and child.getState().contains(pyatspi.STATE_SHOWING)]
    return steadily(ask)


def dialogs(application):
    errors = []
    for opener, closer in DIALOGS.items():
        if not press_first(application, opener):
            errors.append(f"“{opener}” cannot be pressed")
            continue
        dialog = (wait_for(lambda: windows(application)) or [None])[0]
        if dialog is None:
            errors.append(f"“{opener}” opens nothing")
            continue
        walk = steadily(lambda: Walk(dialog))
        errors += [f"no name in “{opener}”: {place}" for place in walk.nameless]
        if "--verbose" in sys.argv:
            print(opener, walk.named)
        if not press_first(dialog, closer):
            errors.append(f"“{opener}” has no “{closer}”, but {walk.named.get('push button')}")
            break
        if not wait_for(lambda: not windows(application)):
            errors.append(f"“{opener}” does not go")
            break
    return errors


def find_application(pid):
    import pyatspi
    end = time.monotonic() + START_SECONDS
    while time.monotonic() < end:
        desktop = pyatspi.Registry.getDesktop(0)
        for index in range(desktop.childCount):
            application = desktop.getChildAtIndex(index)
            if application is not None and application.get_process_id() == pid and application.childCount:
                return application
        time.sleep(0.2)
    return None


def inside(program):
    studio = subprocess.Popen([program, "--language", "de"])
    try:
        application = find_application(studio.pid)
        if application is None:
            return ["the program does not show up on the accessibility bus"]
        errors = [f"no name on the start page: {place}" for place in steadily(lambda: Walk(application)).nameless]
        if not press_first(application, "Weiter zum Kalender"):
            errors.append("the start page cannot be left")
        days = []
        end = time.monotonic() + START_SECONDS
        while not days and time.monotonic() < end:  # the page arrives a moment after the window
            time.sleep(0.5)
            walk = steadily(lambda: Walk(application))
            days = [n for names in walk.named.values() for n in names if DAY.search(n)]
        errors += [f"no name: {place}" for place in walk.nameless]
        if not press_first(application, "Einträge", ("check box", "toggle button", "push button")):
            errors.append("the panel of entries cannot be opened")
        if len({DAY.search(n)[0] for n in days}) < 28:
            errors.append(f"{len(days)} days of the page are told, not a month")
        if "--verbose" in sys.argv:
            print(walk.named)
        if len(walk.named.get("push button", [])) < 5 or len(walk.named.get("menu item", [])) < 5:
            errors.append("the tree is too small to be the studio's")
        return errors + dialogs(application)
    finally:
        studio.kill()
        studio.wait()


def main():
    if sys.argv[1] != "--inside":
        return on_screen_and_bus(sys.argv[1:])
    errors = inside(sys.argv[2])
    print("\n".join(errors) or "every control has a name")
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main())
