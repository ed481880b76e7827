#!/usr/bin/python3
# SPDX-FileCopyrightText: The Boulix developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""evening.py FOLDER: starts the program of FOLDER and spends a player's evening with it through
AT-SPI alone: neither a mouse nor a key is touched. Ends with 1 where something cannot be found,
read or done."""

import os
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

PATIENCE = 30  # seconds


def await_value(what, find):
    """What find() gives as soon as it gives something."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            found = find()
        except Exception:  # a part that has gone while it was looked at
            found = None
        if found:
            return found
        time.sleep(0.05)
    sys.exit(f"FAILED: {what}")


def below(part, depth=12):
    """All parts of `part`; the rows of tables are left out."""
    yield part
    if depth == 0 or part.getRole() == pyatspi.ROLE_TABLE:
        return
    for i in range(part.childCount):
        child = part.getChildAtIndex(i)
        if child is not None:
            yield from below(child, depth - 1)


def shows(part):
    return part.getState().contains(pyatspi.STATE_SHOWING)


def find(within, role, name):
    """The part on the screen that is called so; waits for it."""

    def look():
        for part in below(within()):
            if part.getRole() == role and part.name == name and shows(part):
                return part
        return None

    return await_value(f"no {name!r} of role {role}", look)


def act(part, action):
    actions = part.queryAction()
    for i in range(actions.nActions):
        if actions.getName(i).lower() == action.lower():
            try:
                actions.doAction(i)
            except GLib.GError:
                pass  # what opens a dialog answers when the dialog is closed
            return
    names = [actions.getName(i) for i in range(actions.nActions)]
    sys.exit(f"FAILED: {part.name!r} offers {names}, not {action!r}")


def expect(condition, what):
    if not condition:
        sys.exit(f"FAILED: {what}")


class Program:
    def __init__(self, folder):
        self.process = subprocess.Popen([os.path.join(folder, "boulix")], cwd=folder)
        self.application = await_value("the program is not on the bus", self.on_bus)

    def on_bus(self):
        desktop = pyatspi.Registry.getDesktop(0)
        for i in range(desktop.childCount):
            application = desktop.getChildAtIndex(i)
            if application is not None and application.get_process_id() == self.process.pid:
                return application
        return None

    def window(self, title):
        """The window with that title, or one that begins so where it ends with "..."; waits."""

        def fits(name):
            return name == title or (title.endswith("...") and name.startswith(title[:-3]))

        def look():
            for i in range(self.application.childCount):
                window = self.application.getChildAtIndex(i)
                if window is not None and fits(window.name) and shows(window):
                    return window
            return None

        return await_value(f"no window {title!r}", look)

    def main(self):
        return self.window("boulix Version...")

    def press(self, name, window=None):
        act(find(window or self.main, pyatspi.ROLE_PUSH_BUTTON, name), "Press")

    def table(self, name, window=None):
        return find(window or self.main, pyatspi.ROLE_TABLE, name)

    def go_to(self, tab):
        act(find(self.main, pyatspi.ROLE_PAGE_TAB, tab), "Press")


def import_history(program, sample):
    program.press("Importer")
    files = lambda: program.window("Import...")
    box = await_value(
        "no box for the file name",
        lambda: next(
            part
            for part in below(files())
            if part.getRole() == pyatspi.ROLE_TEXT
            and shows(part)
            and part.getState().contains(pyatspi.STATE_EDITABLE)
        ),
    )
    box.queryEditableText().setTextContents(sample)
    open_button = await_value(
        "no button to open the file",
        lambda: next(
            part
            for part in below(files())
            if part.getRole() == pyatspi.ROLE_PUSH_BUTTON
            and part.name.replace("&", "") == "Ouvrir"
            and part.getState().contains(pyatspi.STATE_ENABLED)
        ),
    )
    act(open_button, "Press")


def read_base(program):
    draws = program.table("Tirages de la base de données")
    rows = await_value("the base stays empty", lambda: draws.queryTable().nRows)
    table = draws.queryTable()
    expect(table.nColumns == 9, f"{table.nColumns} columns")
    headers = [table.getColumnDescription(i) for i in range(table.nColumns)]
    expect(headers[0] == "Date", f"headers {headers}")
    first = table.getAccessibleAt(0, 0)
    expect(first.name.count("/") == 2, f"no date in the first cell: {first.name!r}")
    numbers = [int(table.getAccessibleAt(rows - 1, i).name) for i in range(2, 9)]
    expect(len(set(numbers)) == 7, f"numbers {numbers}")
    act(table.getAccessibleAt(2, 0), "Press")
    await_value("the row is not selected", lambda: table.isRowSelected(2))
    return rows


def choose_numbers(program, numbers):
    program.press("Sélection")
    dialog = lambda: program.window("Selecteur")
    board = program.table("Grille des numéros 1 à 49", dialog).queryTable()
    expect((board.nRows, board.nColumns) == (10, 5), "the board is no table of 10 rows by 5")
    for n in numbers:
        cell = board.getAccessibleAt(n % 10, n // 10)
        expect(cell.name == f"Numéro {n}", f"{cell.name!r} in place of {n}")
        act(cell, "Toggle")
        await_value(
            f"number {n} is not marked",
            lambda cell=cell: cell.getState().contains(pyatspi.STATE_CHECKED),
        )
    board.getAccessibleAt(0, 0)  # the empty place: the program must survive the question
    program.press("Valider la sélection", dialog)


def compose_game(program):
    program.go_to("Jeux")
    program.go_to("Manuel")
    choose_numbers(program, range(11, 18))
    program.press("Calculer")
    calculated = program.table("Grilles calculées").queryTable()
    await_value("no grids were calculated", lambda: calculated.nRows == 7)
    program.press("Ajouter")
    game = program.table("Grilles du jeu courant").queryTable()
    await_value("the grids did not come into the game", lambda: game.nRows == 7)
    grid = [game.getAccessibleAt(0, i).name for i in range(game.nColumns)]
    expect(grid[0] == "1)" and set(map(int, grid[1:])) < set(range(11, 18)), f"grid {grid}")


def verify(program, rows):
    program.go_to("Vérifications")
    draw = find(program.main, pyatspi.ROLE_SPIN_BUTTON, "Tirage").queryValue()
    expect(draw.maximumValue == rows, f"{draw.maximumValue} draws to verify, {rows} in the base")
    draw.currentValue = 3
    await_value("the draw is not the third", lambda: draw.currentValue == 3)


def leave(program):
    act(find(program.main, pyatspi.ROLE_MENU_ITEM, "Fichier"), "ShowMenu")
    for part in below(program.main()):
        if part.name == "Quitter":
            act(part, "Press")
            break
    program.press("Oui", lambda: program.window("boulix"))
    await_value("the program did not end", lambda: program.process.poll() is not None)
    expect(program.process.returncode == 0, f"it ended with {program.process.returncode}")


def main(folder):
    program = Program(folder)
    try:
        import_history(program, os.path.join(folder, "samples", "historique-exemple.txt"))
        rows = read_base(program)
        compose_game(program)
        verify(program, rows)
        leave(program)
        print(f"an evening with {rows} draws, by ear")
    finally:
        if program.process.poll() is None:
            program.process.kill()


if __name__ == "__main__":
    main(sys.argv[1])
