#!/bin/sh
# Walks the client's first screens as a screen reader sees them, over AT-SPI, and writes what it finds to standard
# output. Argument: the program, built. Needs xvfb, xdotool, dbus, at-spi2-core and python3-pyatspi.
set -eu
if [ $# -lt 2 ]; then
    exec xvfb-run -a dbus-run-session -- "$0" "$1" inside 3>&1 >&2 # the bus and its servants print as well
fi
folder=$(mktemp -d)
QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 "$1" --data-dir "$folder/data" --no-phone &
client=$!
trap 'kill $client; rm -rf "$folder"' EXIT
/usr/bin/python3 - >&3 <<'END'
import subprocess, threading, time
import pyatspi

TYPED = "Unheard-of-57"
SHOWN = {"push button", "page tab", "check box", "combo box", "text", "password text", "link", "canvas", "label"}
told = []  # every text that an event or a node has given away


def client():
    for _ in range(100):
        for app in pyatspi.Registry.getDesktop(0):
            if app and app.name.lower().startswith("kelvra"):
                return app
        time.sleep(0.1)
    raise SystemExit("The client does not appear on the accessibility bus.")


def nodes(node):
    states = node.getState()
    if states.contains(pyatspi.STATE_SHOWING) or node.getRole() == pyatspi.ROLE_APPLICATION:
        yield node
        for child in node:
            if child:
                yield from nodes(child)


def walk(title):
    print(f"\n{title}\n")
    client().clear_cache()
    for node in nodes(client()):
        role, states = node.getRoleName(), node.getState()
        told.extend([node.name, node.description])
        if "Text" in pyatspi.listInterfaces(node):
            told.append(node.queryText().getText(0, -1))
        if role in SHOWN and (node.name or role != "label"):
            marks = [mark for state, mark in ((pyatspi.STATE_FOCUSABLE, "Tab"), (pyatspi.STATE_FOCUSED, "focused"))
                     if states.contains(state)]
            about = f" - {node.description}" if node.description else ""
            print(f"    {role}: {node.name}{about}" + (f" [{', '.join(marks)}]" if marks else ""))


def press(name):
    node = next(node for node in nodes(client()) if node.name == name and "Action" in pyatspi.listInterfaces(node))
    action = node.queryAction()
    names = [action.getName(i) for i in range(action.nActions)]
    action.doAction(names.index("Toggle" if "Toggle" in names else "Press"))
    time.sleep(1)


def type_password():
    pyatspi.Registry.registerEventListener(lambda event: told.append(str(event.any_data)), "object:text-changed")
    threading.Thread(target=pyatspi.Registry.start, daemon=True).start()
    for keys in (["key", "Tab"], ["type", "--delay", "60", TYPED]):
        subprocess.run(["xdotool", *keys], check=True)
        time.sleep(1)
    pyatspi.Registry.stop()


client()
time.sleep(2)
window = subprocess.check_output(["xdotool", "search", "--onlyvisible", "--class", "kelvra_client"], text=True).split()[0]
subprocess.run(["xdotool", "windowfocus", window], check=True)  # there is no window manager to do it
walk("First run")
for name, screen in (("Login Nimbra App User", "Cloud login, by password"), ("PIN", "Cloud login, by PIN"),
                     ("QR Code", "Cloud login, by QR code"), ("Local User", "Local login"),
                     ("Create New User", "Creation of the superuser")):
    press(name)
    walk(f"{screen}: after a press of “{name}”")
type_password()
walk("The same with a password typed")
fragments = [text for text in told if any(part in text for part in (TYPED, TYPED[:3], TYPED[-3:]))]
singles = "".join(text for text in told if len(text) == 1)
print("\nThe typed password was", "told" if fragments or TYPED in singles else "not told", "to anybody who listens.")
END
