# SPDX-License-Identifier: GPL-3.0-or-later
"""Walks every screen of Tarnelo through AT-SPI, as a screen reader would,
moving only through the accessibility interface: it presses the tabs, menu
rows and links, and signs in by typing into the login form. It fails when a
screen's own text is not read out, when a control has no name, or when a
control is read out although it lies outside the window. What each control
offers in-process, with every sheet open, is tst_accessibletree's.

Usage (see atspi-walk.sh): atspi_walk.py APP EMAIL PASSWORD
"""
import os
import subprocess
import sys
import time

import pyatspi

PRESSABLE = {pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON,
             pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_LINK, pyatspi.ROLE_LIST_ITEM}
EDITABLE = {pyatspi.ROLE_ENTRY, pyatspi.ROLE_TEXT, pyatspi.ROLE_PASSWORD_TEXT}
PRESS_ACTIONS = {"Press", "Toggle"}


class Stuck(Exception):
    pass


def wait_for(find, what, timeout=10):
    deadline = time.time() + timeout
    while time.time() < deadline:
        pyatspi.Registry.getDesktop(0).clearCache()
        found = find()
        if found:
            return found
        time.sleep(0.1)
    raise Stuck(f"timed out waiting for {what}")


def showing(node):
    """The node and its descendants that are on screen now."""
    if node is None:
        return
    state = node.getState()
    if not (state.contains(pyatspi.STATE_SHOWING) and state.contains(pyatspi.STATE_VISIBLE)):
        return
    yield node
    for index in range(node.childCount):
        yield from showing(node.getChildAtIndex(index))


def text_of(node):
    try:
        text = node.queryText()
    except NotImplementedError:
        return ""
    return text.getText(0, text.characterCount)


def overlaps(box, window):
    return box.x < window.x + window.width and window.x < box.x + box.width and box.y < window.y + window.height and window.y < box.y + box.height


class Walk:
    def __init__(self, app_path):
        self.process = subprocess.Popen([app_path], stdout=subprocess.DEVNULL)
        self.app = wait_for(lambda: next((child for child in pyatspi.Registry.getDesktop(0) if child and child.name == "tarnelo"), None),
                            "the app on the accessibility bus")
        self.problems = []

    def frame(self):
        return self.app.getChildAtIndex(0)

    def control(self, name, roles=PRESSABLE):
        """The node on screen named so, among those roles (or of any role)."""
        return next((node for node in showing(self.frame()) if (roles is None or node.getRole() in roles) and node.name == name), None)

    def reads(self, *fragments):
        """Waits until each of the texts is read out somewhere on screen."""
        for fragment in fragments:
            wait_for(lambda: next((node for node in showing(self.frame()) if fragment in node.name), None), f'"{fragment}" read out')

    def press(self, name, then):
        """Presses the control named so and waits for the control named `then`."""
        control = wait_for(lambda: self.control(name), f'"{name}"')
        actions = control.queryAction()
        actions.doAction(next(index for index in range(actions.nActions) if actions.getName(index) in PRESS_ACTIONS))
        wait_for(lambda: self.control(then, None), f'"{then}" after pressing "{name}"')

    def type_into(self, field, text):
        """Focuses the field through its SetFocus action and types as a keyboard would."""
        actions = field.queryAction()
        actions.doAction(next(index for index in range(actions.nActions) if actions.getName(index) == "SetFocus"))
        wait_for(lambda: field.getState().contains(pyatspi.STATE_FOCUSED), "the field to take the focus")
        # With no window manager, X sends keys to the window under the pointer.
        box = field.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        pyatspi.Registry.generateMouseEvent(box.x + box.width // 2, box.y + box.height // 2, pyatspi.MOUSE_ABS)
        pyatspi.Registry.generateKeyboardEvent(0, text, pyatspi.KEY_STRING)
        wait_for(lambda: text_of(field).endswith(text) or field.getRole() == pyatspi.ROLE_PASSWORD_TEXT, f"{text!r} typed")

    def close_menu_by(self, row, then):
        """Presses a side-menu row and waits for the menu to have slid away."""
        self.press(row, then)
        wait_for(lambda: self.control("Close Menu") is None, "the side menu to close")

    def sign_in(self, email, password):
        self.type_into(wait_for(lambda: self.control("Enter Username; name@example.com", EDITABLE), "the e-mail field"), email)
        self.type_into(wait_for(lambda: self.control("", {pyatspi.ROLE_PASSWORD_TEXT}), "the password field"), password)
        self.press("Login", then="Login successful.")

    def out_of_sight(self):
        """Controls still read out although they lie wholly outside the window."""
        window = self.frame().queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return [node.name for node in showing(self.frame())
                if node.getRole() in PRESSABLE | EDITABLE and not overlaps(node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS), window)]

    def check(self, screen):
        # A page sliding in or a menu sliding away is out of sight for a moment.
        try:
            wait_for(lambda: not self.out_of_sight(), "", timeout=3)
        except Stuck:
            self.problems += [f'{screen}: "{name}" is out of sight but still read out' for name in self.out_of_sight()]
        self.problems += [f"{screen}: a {node.getRoleName()} without a name" for node in showing(self.frame())
                          if node.getRole() in PRESSABLE and not node.name.strip()]

    def stop(self):
        self.process.terminate()
        self.process.wait(10)


def main():
    app_path, email, password = sys.argv[1:4]
    # The registry answers before the app starts, or the app never registers.
    pyatspi.Registry.getDesktop(0).childCount
    os.environ["TARNELO_POSITION"] = "fixed:-1.2864,36.8172"
    walk = Walk(app_path)
    try:
        walk.reads("AQI", "Updated")
        walk.check("dashboard, guest")
        walk.press("Past 7 days of air quality", then="Back")
        walk.check("history")
        walk.press("Back", then="Past 7 days of air quality")
        walk.press("Menu", then="AQI Scale")
        walk.check("side menu, guest")
        walk.close_menu_by("AQI Scale", then="Register Now")
        walk.check("login")
        walk.press("Register Now", then="Register")
        walk.check("registration")
        walk.press("Login Now", then="Forget Password?")
        walk.press("Forget Password?", then="Reset Password")
        walk.check("password reset")
        walk.press("Back to Login", then="Login")
        walk.sign_in(email, password)
        walk.check("signed in")
        walk.press("OK", then="Past 7 days of air quality")
        for row, marker in (("AQI Scale", "The AQI Index Scale"), ("Health Tips", "POLLUTANTS"), ("Map", "Search"),
                            ("Notification", "Air alerts"), ("Profile", "Edit Personal Bio")):
            walk.press("Menu", then=row)
            walk.close_menu_by(row, then=marker)
            walk.check(row)
        for link, marker in (("Edit Personal Bio", "Update"), ("View Subscription Packages", "Subscribe"), ("Edit Medical Profile", "Are you smoking?")):
            walk.press(link, then=marker)
            walk.check(link)
            walk.press("Back", then="Edit Medical Profile")
    except Stuck as stuck:
        walk.problems.append(str(stuck))
    finally:
        walk.stop()

    for problem in walk.problems:
        print(f"FAIL {problem}")
    sys.exit(1 if walk.problems else 0)


if __name__ == "__main__":
    main()
