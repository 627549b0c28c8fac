"""What a screen reader hears of the studio: test_accessibility.py <mvcalendar-studio>

Starts the program on a screen and a session bus of its own and walks the tree that it tells assistive technology.
Every control that takes the keyboard has a name, and the days of the page are there with their dates.
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


def on_screen_and_bus(arguments):
    command = ["dbus-run-session", "--", "xvfb-run", "-a", "-s", "-screen 0 1280x800x24",
               sys.executable, __file__, "--inside", *arguments]
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                           LC_ALL="C.UTF-8", XDG_CONFIG_HOME=f"{home}/config", XDG_DATA_HOME=f"{home}/data",
                           XDG_RUNTIME_DIR=home, MVCALENDAR_DATA=f"{home}/data/mvcalendar")
        return subprocess.run(command, env=environment, timeout=240).returncode


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
        if role in CONTROLS and not name and self._takes_keyboard(item) and role not in PARTS.get(parent_role, ()):
            self.nameless.append(" > ".join(here[-4:]))
        if depth < 24:
            for index in range(min(item.childCount, 400)):
                child = item.getChildAtIndex(index)
                if child is not None:
                    self._visit(child, here, depth + 1)

    @staticmethod
    def _takes_keyboard(item):
        import pyatspi
        states = item.getState()
        return states.contains(pyatspi.STATE_FOCUSABLE) and states.contains(pyatspi.STATE_SHOWING)


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
        days = []
        end = time.monotonic() + START_SECONDS
        while not days and time.monotonic() < end:  # the page arrives a moment after the window
            time.sleep(0.5)
            walk = Walk(application)
            days = [n for names in walk.named.values() for n in names if DAY.search(n)]
        errors = [f"no name: {place}" for place in walk.nameless]
        if len({DAY.search(n)[0] for n in days}) < 28:
            errors.append(f"{len(days)} days of the page are told, not a month")
        if "--verbose" in sys.argv:
            print(walk.named)
        if len(walk.named.get("push button", [])) < 5 or len(walk.named.get("menu item", [])) < 5:
            errors.append("the tree is too small to be the studio's")
        return errors
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
