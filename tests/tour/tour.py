#!/usr/bin/python3
"""The tour: the real program on a virtual display, among other windows, driven by a real mouse and keyboard.

    tests/tour/tour.py [WIDTHxHEIGHT[@FACTOR][:DPI] ...]

FACTOR is the desktop's own scale factor (1 when left out), DPI its font resolution (96). Without screens it plays
on five of them, unless it has passed with just this program. It plays what stands in build/release, leaves numbered
pictures in build/tour, and stops with a sentence where a step has no effect or a window reaches beyond the screen.
Controls are found by what a screen reader is told of them, so what it clicks is what a person can find too.
"""
import contextlib
import filecmp
import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi

ROOT = pathlib.Path(__file__).resolve().parents[2]
PICTURES = ROOT / "build/tour"
PROGRAM = ROOT / "build/release/velmora", ROOT / "build/release/VELMORA.HLP"
SCREENS = ["1366x768", "1366x768:192", "1920x1080", "2560x1440@1.25", "3840x2160@2"]

# What is found neither by its name nor by its text has its place in twips on the table, from the corner that the box
# of the chip value tells: it never moves.
CHIP_VALUE = r"\|Enter between \$10 and \$9990"
CHIP_VALUE_LEFT, CHIP_VALUE_TOP, CHIP_VALUE_WIDTH = 1620, 4920, 780
FELT, FIRST_STRIP, SECOND_CARD, BANKER_CHIP_5 = (250, 2500), (1492, 4207), (2692, 3420), (5182, 2872)

SHUFFLE, DEAL, CARD = r"^push button\|&?Shuffle", r"^push button\|Deal", r"\|Click to reveal card"


class Tour:
    def __init__(self, screen, home, jobs):
        self.size, factor, resolution = re.fullmatch(r"(\d+x\d+)(?:@([\d.]+))?(?::(\d+))?", screen).groups()
        self.home, self.ini, self.resolution = home, home / "VELMORA.INI", resolution or "96"
        self.pictures = PICTURES / screen
        shutil.rmtree(self.pictures, ignore_errors=True)
        self.pictures.mkdir(parents=True)
        for file in PROGRAM:
            shutil.copy(file, home)
        folders = dict.fromkeys(("HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME"), str(home))
        os.environ.update(folders, LC_ALL="C.UTF-8", QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                          QT_SCALE_FACTOR=factor or "1")
        self.jobs = jobs
        display = self.start("Xvfb", "-displayfd", "1", "-screen", "0", self.size + "x24", "-nolisten", "tcp",
                             stdout=subprocess.PIPE)
        os.environ["DISPLAY"] = ":" + display.stdout.readline().decode().strip()
        self.start("jwm", "-f", ROOT / "tests/tour/jwmrc", stderr=subprocess.DEVNULL)
        self.wait(lambda: b"window id" in subprocess.check_output(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"]),
                  "no window manager comes up")
        subprocess.run(["xprop", "-root", "-f", "RESOURCE_MANAGER", "8s", "-set", "RESOURCE_MANAGER",
                        f"Xft.dpi:\t{self.resolution}"], check=True)

    def start(self, *command, **streams):
        job = subprocess.Popen(command, **streams)
        self.jobs.callback(job.terminate)
        return job

    def fail(self, sentence):
        subprocess.run(["maim", self.pictures / "failed.png"], check=False)
        seen = "\n".join(f"{told} {place}" for told, place in self.look())
        sys.exit(f"The tour failed: {sentence}.\nThe screen then: {self.pictures}/failed.png; what it told:\n{seen}")

    # What is there.

    def look(self):
        """All that shows: "role|name|description" as a screen reader hears it, and x, y, width, height in pixels."""
        found, level = [], [Atspi.get_desktop(0)]
        level[0].set_cache_mask(Atspi.Cache.NONE)
        while level:
            node = level.pop()
            try:
                level += [node.get_child_at_index(n) for n in reversed(range(node.get_child_count()))]
                if node.get_state_set().contains(Atspi.StateType.SHOWING):
                    told = "|".join((node.get_role_name(), node.get_name(), node.get_description()))
                    place = node.get_extents(Atspi.CoordType.SCREEN)
                    found.append((" ".join(told.split()), (place.x, place.y, place.width, place.height)))
            except (AttributeError, RuntimeError):
                continue  # It has gone meanwhile.
        return found

    def find(self, pattern):
        return next((place for told, place in self.look() if re.search(pattern, told)), None)

    def wait(self, holds, sentence, seconds=10):
        until = time.monotonic() + seconds
        while not (found := holds()):
            if time.monotonic() > until:
                self.fail(sentence)
            time.sleep(0.1)
        return found

    def shows(self, pattern, sentence, seconds=10):
        return self.wait(lambda: self.find(pattern), sentence, seconds)

    def frame_shows(self):
        """Of a minimised window a screen reader is told as of any other."""
        search = ["xdotool", "search", "--onlyvisible", "--name", "^Velmora$"]
        return subprocess.run(search, stdout=subprocess.DEVNULL, check=False).returncode == 0

    def setting(self, section, key):
        """A value of the settings file, without its blanks."""
        text = self.ini.read_text("latin-1") if self.ini.exists() else ""
        found = re.search(rf"^\[{section}\]\s(?:[^\[]*\n)?{key}=(.*)", text, re.M | re.I)
        return found and found[1].strip()

    def kept(self, section, key, value, sentence):
        self.wait(lambda: self.setting(section, key) == value, f"{sentence} ({key} of [{section}] is not {value})")

    def picture(self, name):
        """Takes the whole screen as the next picture. No window may reach beyond it."""
        time.sleep(0.3)
        number = len(list(self.pictures.glob("*-*.png"))) + 1
        subprocess.run(["maim", "--hidecursor", self.pictures / f"{number:02}-{name}.png"], check=True)
        width, height = map(int, self.size.split("x"))
        for told, (x, y, w, h) in self.look():
            if re.match("(frame|dialog|alert|filler)", told) and (x < 0 or y < 0 or x + w > width or y + h > height):
                self.fail(f"a window reaches beyond the screen: {told} at {x},{y} measuring {w}x{h}")

    # What its user does.

    def do(self, *words):
        subprocess.run(["xdotool", *map(str, words), "sleep", "0.1"], check=True)

    def click(self, pattern):
        self.click_middle(self.shows(pattern, f"nothing on the screen is called {pattern}"))

    def click_middle(self, place):
        x, y, width, height = place
        self.do("mousemove", x + width // 2, y + height // 2, "sleep", "0.05", "click", 1)

    def on_table(self, place):
        x, y, width, _ = self.find(CHIP_VALUE)
        scale = width / CHIP_VALUE_WIDTH
        return round(x + (place[0] - CHIP_VALUE_LEFT) * scale), round(y + (place[1] - CHIP_VALUE_TOP) * scale)

    def click_table(self, place):
        self.do("mousemove", *self.on_table(place), "sleep", "0.05", "click", 1)

    def start_program(self, **streams):
        return self.start(self.home / "velmora", stderr=open(self.pictures / "velmora.log", "a"), **streams)

    def enter_table(self, *way):
        self.program = self.start_program()
        self.shows("Click to START", "the start screen does not show", 60)
        self.picture("start-screen")
        self.click("Click to START" if not way else r"\|Version 1")
        self.do(*way)
        self.shows(CHIP_VALUE, "the start screen does not lead to the table", 20)
        self.picture("table")

    def leave(self):
        self.do("key", "--delay", 40, "alt+f", "x")
        if self.program.wait(20) != 0:
            self.fail("the program did not end well")

    # The evening.

    def expect_scale(self):
        """The table is drawn at the largest hundredth at which 960x700 fit the screen."""
        width, height = map(int, self.size.split("x"))
        wanted = CHIP_VALUE_WIDTH / 15 * int(min(width / 960, height / 700) * 100) / 100
        if abs(self.find(CHIP_VALUE)[2] - wanted) > 1.5:
            self.fail(f"the table is not drawn at the scale that fits {self.size}")

    def use_the_count_of_cards(self):
        """It lies before the frame. A click on the frame covers it, unless it is kept on top."""
        on_top = r"^check box\|Keep on top"
        for wanted in "1", "0":
            self.click(on_top)
            self.kept("Misc", "CardsDealtCountOnTop", wanted, "the count of cards cannot be reached")
            self.click_table(FELT)
        self.click(on_top)
        time.sleep(1)
        self.kept("Misc", "CardsDealtCountOnTop", "0", "a click on the frame does not cover the count of cards")
        for wanted in "False", "True", "False":
            self.click(r"\|Show count of all cards dealt")
            self.kept("Card Options", "Show Cards Dealt Count", wanted, "the toolbar does not switch the count")
        for key, place in ("Left", "300"), ("Top", "1800"):
            self.kept("frmCardsDealtCount", key, place, "the count of cards has moved by itself")

    def deal_ten_hands(self):
        self.click(SHUFFLE)
        self.shows(DEAL, "the shuffle does not end", 30)
        self.click_table(BANKER_CHIP_5)
        self.click(r"^push button\|10\b")
        self.shows("10 hands have just been dealt", "the ten hands do not end in their message", 20)
        self.picture("ten-hands")
        self.do("key", "Return")
        self.click(r"\|Show Player Statistics")
        self.shows("(?i)turnover", "the statistics do not show")
        self.picture("statistics")
        self.click(r"^push button\|OK")

    def squeeze_a_hand(self):
        self.click(r"\|Cards dealt face up if pressed")
        self.click_table(BANKER_CHIP_5)
        self.click(DEAL)
        self.shows("To reveal card - press left mouse button and move up", "no card waits for the user", 20)
        time.sleep(3)
        x, y = FIRST_STRIP
        self.do("mousemove", *self.on_table(FIRST_STRIP), "mousedown", 1)
        for pulled in 200, 400, 600, 800:
            self.do("mousemove", *self.on_table((x, y - pulled)))
        self.picture("squeeze")
        self.do("mousemove", *self.on_table((x, y - 1600)), "sleep", 0.2, "mouseup", 1)
        self.do("mousemove", *self.on_table(FELT), "sleep", 0.2, "mousemove", *self.on_table(SECOND_CARD))
        self.do("mousemove_relative", 5, 5)
        self.shows(r"NATURAL\|", "learn mode gives no advice for the second card")
        self.picture("learn")
        until = time.monotonic() + 40
        while self.setting("ShoesHandsPlayed", "Hands") != "11":
            if time.monotonic() > until:
                self.fail("the turned cards lead to no end of the hand")
            if card := self.find(CARD):
                self.click_middle(card)
        self.shows(DEAL, "the table does not reopen after the hand")

    def use_the_menus(self):
        """They look the same whatever font resolution the desktop tells."""
        self.do("key", "alt+o")
        x, y, width, height = self.shows(r"\|Large Buttons", "the menu does not open by its key")
        self.picture("menu")
        entry = self.pictures / "entry.png"
        subprocess.run(["maim", "--hidecursor", "-g", f"{width}x{height}+{x}+{y}", entry], check=True)
        if self.resolution != "96" and not filecmp.cmp(entry, PICTURES / self.size / "entry.png", shallow=False):
            self.fail("the menus follow the desktop's font resolution")
        self.do("key", "l")
        self.kept("Options", "Large Buttons", "False", "the menu does not change the toolbar")
        self.do("key", "--delay", 40, "alt+h", "c")
        self.shows("Contents", "the help does not open")
        self.picture("help")
        self.do("key", "alt+F4")
        self.wait(lambda: not self.find("Contents"), "the help does not close")

    def start_again_and_crash(self):
        """A second start brings the first to the front; another user has a program of their own; a crash locks nobody
        out."""
        self.do("getactivewindow", "windowminimize", "sleep", 1)
        if self.frame_shows():
            self.fail("the frame is not minimised")
        if self.start_program().wait(60) != 0:
            self.fail("a second start does not end well")
        self.wait(self.frame_shows, "a second start does not bring the first to the front")
        other = self.start_program(env={**os.environ, "XDG_DATA_HOME": str(self.home / "other")})
        self.shows("Click to START", "another user cannot start the program")
        for program in other, self.program:
            program.kill()
            program.wait()

    def play(self):
        self.enter_table()
        self.expect_scale()
        self.use_the_count_of_cards()
        self.deal_ten_hands()
        self.squeeze_a_hand()
        self.use_the_menus()
        self.start_again_and_crash()
        self.enter_table("key", "s")
        total = int(1000 + float(self.setting("Player1Stats", "Win")) + 0.5)
        self.shows(rf"\${total:,}\|Stake and winnings", f"the first seat does not find its {total} again")
        self.leave()


def play_each(screens):
    """Each has a session bus of its own, whose messages nobody needs."""
    for screen in screens:
        command = ["dbus-run-session", "--", __file__, "inside", screen]
        if subprocess.run(command, stderr=subprocess.DEVNULL, check=False).returncode:
            sys.exit(f"The tour of {screen} has not come to its end.")


def main(screens):
    if screens[:1] == ["inside"]:
        sys.stderr = sys.stdout
        with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as home, contextlib.ExitStack() as jobs:
            tour = Tour(screens[1], pathlib.Path(home), jobs)
            tour.play()
            return print(f"Played at {screens[1]}; pictures are in {tour.pictures}")
    if screens:
        return play_each(screens)
    played = hashlib.sha256(b"".join(path.read_bytes() for path in (*PROGRAM, pathlib.Path(__file__)))).hexdigest()
    passed = PICTURES / "passed"
    if passed.exists() and passed.read_text() == played:
        return print("The tour has passed with this program; its pictures are in build/tour.")
    play_each(SCREENS)
    passed.write_text(played)


if __name__ == "__main__":
    main(sys.argv[1:])
