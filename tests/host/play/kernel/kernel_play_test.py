#!/usr/bin/env python3
"""`tavi play` on a real kernel, with a keyboard, a mouse and a gamepad: compares the events that libinput and a reader
of evdev get with the simulation.

    kernel_play_test.py TAVI HANDS EYES KERNEL_DIR WORK_DIR SOURCE_DIR [BARE]

With BARE, a minimal loop between a keyboard and a touch screen, also compares the time from a key to its touch with
that of BARE. TAVI must be a release build then.

Boots a small machine in qemu, without acceleration. The lines of `tavi simulate` for the same script give the expected
events of each finger. If something that the test needs is missing, it is skipped with exit status 77.
"""
import re
import shutil
import statistics
import subprocess
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[3] / "guest" / "kernel"))

import small_machine  # noqa: E402

TAVI, HANDS, EYES, KERNEL, WORK, ROOT = (Path(argument).resolve() for argument in sys.argv[1:7])
BARE = Path(sys.argv[7]).resolve() if len(sys.argv) > 7 else None
HERE = Path(__file__).parent
QEMU = small_machine.X86_64[0]
BOOT_SECONDS = 900
# For the race, a processor that takes 4 ns for each instruction, whatever the host's load. Without this, the emulator
# forgets its translated addresses at each process switch, and finding them again would be most of the measured time.
STEADY = [*small_machine.X86_64, "-icount", "shift=2"]
MOST_TIMES_BARE = 2.0  # 1.9 was measured
LIBINPUT = KERNEL / "libinput"

# The shooter with two more gestures: a chord, and a pinch by a key.
MORE_ITEMS = """
  - {type: Click, label: Chord, key: H + J, point: [0.5, 0.25]}
  - {type: Zoom, label: Pinch, key: Numpad Plus, point: [0.5, 0.5], speed: 50, duration_ms: 120, start_distance: 0.05}
"""
OTHER_KEYMAP = "format: 1\nitems:\n  - {type: Click, key: Space, point: [0.1, 0.2]}\n"
# A key that holds a finger, and a macro without an end or a pause.
ENDLESS_KEYMAP = """format: 1
items:
  - {type: Click, key: A, point: [0.3, 0.4]}
  - {type: Macro, key: Space, press_commands: ["start_loop:until_release", "default_sleep_time:8",
     "default_sleep_time:8", stop_loop]}
"""

SCRIPT = """
down Space; wait 60; up Space; wait 100
down H; wait 30; down J; wait 60; up J; wait 30; up H; wait 100
down W; wait 500; down D; wait 500; up D; wait 500; up W; wait 200
down Grave; wait 60; up Grave; wait 60
rel 3,-2; wait 80; rel 5,-3; wait 80; rel 8,4; wait 80
down Grave; wait 60; up Grave; wait 100
down Numpad Plus; wait 60; up Numpad Plus; wait 300
"""
# The same for a gamepad: a tap, a chord, a trigger, a walk by the left stick.
PAD_SCRIPT = """
joy down A; wait 100; joy up A; wait 150
joy down LB; wait 100; joy down A; wait 100; joy up A; wait 100; joy up LB; wait 150
joy down RT; wait 100; joy up RT; wait 150
joy axis 0 1,0; wait 600; joy axis 0 0,0; wait 400
"""
PAD_BUTTONS = {"A": "pad 304", "LB": "pad 310", "RT": "axis 5"}
# For a text field: the typed text, and the keys that type it on the player's keyboard.
TYPED_SCRIPT = "textfield on; type hi!; wait 100; down Enter; wait 100; up Enter\n"
TYPED_KEYS = ((35, 1), (35, 0), (23, 1), (23, 0), (42, 1), (2, 1), (2, 0), (42, 0), (28, 1), (28, 0))
# Recorded, and then played.
RECORD_SCRIPT = """
down Space; wait 60; up Space; wait 3000
down W; wait 300; down D; wait 300; up D; wait 300; up W; wait 200
"""
KEYS = {"Space": 57, "H": 35, "J": 36, "W": 17, "D": 32, "Grave": 41, "Numpad Plus": 78}


def missing():
    for program in (QEMU, "busybox", "cpio", "ldd"):
        if not shutil.which(program):
            return f"{program} is not installed (tools/install-dependencies.sh guest)"
    for name in ("vmlinuz", "evdev.ko", "uinput.ko"):
        if not (KERNEL / name).exists():
            return f"no {name} in {KERNEL} (tests/guest/kernel/fetch_kernel.sh {KERNEL})"
    if not (LIBINPUT / "usr/bin/cage").exists():
        return f"no libinput and compositor in {KERNEL} (tests/host/play/kernel/fetch_libinput.sh {KERNEL})"
    return None


def hand_commands():
    """The script as commands of the hands."""
    commands = []
    for command in filter(None, (part.strip() for part in SCRIPT.replace("\n", ";").split(";"))):
        verb, _, rest = command.partition(" ")
        commands.append({"down": lambda r: f"key {KEYS[r]} 1", "up": lambda r: f"key {KEYS[r]} 0",
                         "wait": lambda r: f"wait {r}", "rel": lambda r: "rel " + r.replace(",", " ")}[verb](rest))
    return "\n".join(commands) + "\n"


def pad_commands():
    commands = []
    for command in filter(None, (part.strip() for part in PAD_SCRIPT.replace("\n", ";").split(";"))):
        words = command.split()
        if words[0] == "wait":
            commands.append(command)
        elif words[1] == "axis":
            commands += [f"axis {axis} {int(float(value) * 32767)}" for axis, value in enumerate(words[3].split(","))]
        else:
            button = PAD_BUTTONS[words[2]]
            down = 255 if button.startswith("axis") else 1
            commands.append(f"{button} {down if words[1] == 'down' else 0}")
    return "\n".join(commands) + "\n"


def typed_commands():
    return "".join(f"key {code} {value}\nwait 30\n" for code, value in TYPED_KEYS)


def run(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, **options).stdout


AXES = {0x35: "x", 0x36: "y", 0x2f: "slot", 0x39: "id"}
NAMES = {"ABS_MT_POSITION_X": "x", "ABS_MT_POSITION_Y": "y", "ABS_MT_SLOT": "slot", "ABS_MT_TRACKING_ID": "id"}


class Screen:
    """Fingers of a touch screen, from its events. The kernel omits values that did not change, however old they are."""

    def __init__(self):
        self.slot, self.down, self.places, self.moved = 0, {}, {}, set()
        self.fingers = []  # (step, finger): each from going down to going up, in the order of going down

    def take(self, what, value, step=""):
        if what == "slot":
            self.slot = value
        elif what == "id" and value == -1:
            if self.slot in self.down:
                self.down.pop(self.slot)["up"] = True
        elif what == "id":
            self.down[self.slot] = {"places": [], "up": False}
            self.fingers.append((step, self.down[self.slot]))
            self.moved.add(self.slot)
        elif what in ("x", "y"):
            self.places.setdefault(self.slot, {})[what] = value
            self.moved.add(self.slot)
        elif what == "report":
            self.end_frame()

    def end_frame(self):
        for slot in sorted(self.moved & set(self.down)):
            place = (self.places[slot]["x"], self.places[slot]["y"])
            if self.down[slot]["places"][-1:] != [place]:
                self.down[slot]["places"].append(place)
        self.moved.clear()


def simulate(script, *options):
    return run(TAVI, "simulate", *options, WORK / "root" / "keymap.yaml", "-", input=script)


def events_of(timeline):
    """The events of the devices for a timeline, from `tavi guest-uinput`."""
    return [line.split() for line in run(TAVI, "guest-uinput", "--timeline", "--dry-run", input=timeline).splitlines()]


def fingers_of(timeline):
    screen = Screen()
    for device, kind, code, value in events_of(timeline):
        if device == "screen":
            screen.take("report" if kind == "EV_SYN" else NAMES.get(code, ""), int(value))
    return [finger for _, finger in screen.fingers]


def seen_fingers(lines):
    """The same for the events that the eyes saw, by step."""
    screen, step, fingers = Screen(), "", {}
    for line in lines:
        if line.startswith("step "):
            step = line[5:]
        elif line == "tavi screen|gone":
            screen = Screen()
        elif match := re.match(r"tavi screen\|(\d+) (\d+) (-?\d+) ", line):
            kind, code, value = (int(word) for word in match.groups())
            before = len(screen.fingers)
            screen.take("report" if kind == 0 else AXES.get(code, "") if kind == 3 else "", value, step)
            for name, finger in screen.fingers[before:]:
                fingers.setdefault(name, []).append(finger)
    return fingers


def copy(source, target):
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(source, target)


def make_file_system(first_process):
    root = WORK / "root"
    shutil.rmtree(root, ignore_errors=True)
    plugin = next(Path("/usr/lib").glob("*/qt5/plugins/platforms/libqoffscreen.so"))
    debug_events = LIBINPUT / "usr/libexec/libinput/libinput-debug-events"
    udev = [LIBINPUT / "bin/udevadm"]
    helpers = sorted((LIBINPUT / "lib/udev").glob("libinput-*"))
    desktop = [LIBINPUT / program for program in ("usr/bin/cage", "usr/bin/wev", "usr/sbin/seatd")]
    for library in small_machine.libraries(TAVI, HANDS, EYES, plugin, debug_events, *udev, *helpers, *desktop,
                                           folder=LIBINPUT / "usr/lib/x86_64-linux-gnu"):
        name = library.split("/libinput/", 1)[1] if str(LIBINPUT) in library else library[1:]
        copy(library, root / name)
    copy(plugin, root / str(plugin)[1:])
    copy(shutil.which("busybox"), root / "bin/busybox")
    copy(HERE / first_process, root / "init")
    (root / "init").chmod(0o755)
    copy(HERE / "machine.sh", root / "machine.sh")
    copy(LIBINPUT / "bin/udevadm", root / "bin/udevadm")
    (root / "lib/systemd").mkdir(parents=True)
    (root / "lib/systemd/systemd-udevd").symlink_to("/bin/udevadm")
    for program in desktop:
        copy(program, root / program.relative_to(LIBINPUT))
    (root / "usr/bin/Xwayland").symlink_to("/bin/busybox")  # must exist, but is never started
    shutil.copytree(LIBINPUT / "usr/share/X11", root / "usr/share/X11", symlinks=True)
    for helper in helpers:
        copy(helper, root / "lib/udev" / helper.name)
    for rules in ("50-udev-default", "60-input-id", "60-evdev", "70-touchpad", "70-mouse", "70-joystick",
                  "80-libinput-device-groups", "90-libinput-fuzz-override"):
        copy(LIBINPUT / f"lib/udev/rules.d/{rules}.rules", root / f"lib/udev/rules.d/{rules}.rules")
    copy(ROOT / "packaging/60-tavi.rules", root / "lib/udev/rules.d/60-tavi.rules")
    shutil.copytree(LIBINPUT / "usr/share/libinput", root / "usr/share/libinput")
    copy(debug_events, root / "usr/libexec/libinput/libinput-debug-events")
    (root / "etc/fonts").mkdir(parents=True)
    (root / "etc/fonts/fonts.conf").write_text("<fontconfig/>\n", encoding="utf-8")
    (root / "bin/sh").symlink_to("busybox")
    (root / "etc").mkdir(exist_ok=True)
    (root / "etc/passwd").write_text("root:x:0:0:root:/:/bin/sh\nnobody:x:65534:65534::/tmp:/bin/sh\nplayer:x:1000:1000::/tmp:/bin/sh\n", encoding="utf-8")
    (root / "etc/group").write_text("root:x:0:\ninput:x:104:player\ntty:x:5:\nnogroup:x:65534:\n", encoding="utf-8")
    for program, name in ((TAVI, "tavi"), (HANDS, "hands"), (EYES, "eyes")):
        subprocess.run(["strip", "-o", root / name, program], check=True)
    if BARE:
        subprocess.run(["strip", "-o", root / "bare", BARE], check=True)
    for module in ("evdev.ko", "uinput.ko"):
        copy(KERNEL / module, root / module)
    shooter = (ROOT / "examples/keymaps/shooter.yaml").read_text(encoding="utf-8")
    (root / "keymap.yaml").write_text(shooter + MORE_ITEMS, encoding="utf-8")
    (root / "other.yaml").write_text(OTHER_KEYMAP, encoding="utf-8")
    (root / "endless.yaml").write_text(ENDLESS_KEYMAP, encoding="utf-8")
    copy(ROOT / "examples/keymaps/shooter_gamepad.yaml", root / "pad.yaml")
    simulate(RECORD_SCRIPT, "--record", root / "record.json")
    for name, commands in (("script", hand_commands()), ("typed_script", typed_commands()),
                           ("pad_script", pad_commands())):
        (root / name).write_text(commands, encoding="utf-8")


def boot(first_process, machine=small_machine.X86_64):
    """The machine's output between the marks: the lines of each file, by its name."""
    make_file_system(first_process)
    archive = small_machine.pack(WORK / "root", WORK / "root.cpio")
    kernel = small_machine.unpacked(KERNEL / "vmlinuz", WORK / "vmlinux")
    text = small_machine.boot(kernel, archive, BOOT_SECONDS, machine, memory=1024)
    (WORK / f"{first_process}.txt").write_text(text, encoding="utf-8")
    files = small_machine.between_marks(text).split("=== file ")[1:]
    return {file.split("\n", 1)[0]: file.split("\n", 1)[1].splitlines() for file in files}


def latencies(files):
    """The microseconds from each key to its touch, of the bare loop and of the player: one list per round."""
    pressed, touched, runner = {"bare": [], "play": []}, {"bare": [], "play": []}, ""
    for line in files["hands"]:
        if line.startswith("race "):
            runner = line[5:]
            pressed[runner].append([])
        elif line.startswith("press "):
            pressed[runner][-1].append(int(line[6:]))
    for line in files["eyes"]:
        if line.startswith("step "):
            runner = line[10:] if line.startswith("step race ") else ""
            if runner:
                touched[runner].append([])
        elif runner and (match := re.match(r"(bare|tavi) screen\|1 330 1 (\d+)", line)):
            touched[runner][-1].append(int(match[2]))
    return {runner: [[touch - press for press, touch in zip(*round_)] for round_ in zip(pressed[runner], touched[runner])]
            for runner in pressed}


def steps(lines):
    """The lines of each step."""
    found, name = {}, ""
    for line in lines:
        if line.startswith("step "):
            name = line[5:]
        found.setdefault(name, []).append(line)
    return found


class KernelPlay(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.files = boot("init.sh")
        cls.eyes = steps(cls.files["eyes"])
        cls.fingers = seen_fingers(cls.files["eyes"])
        cls.libinput = steps(cls.files["libinput"])

    def screen(self, step):
        """The fingers that another reader saw going down."""
        return self.fingers.get(step, [])

    def board(self, step):
        """The keys that another reader of the player's keyboard saw, with 1 for down and 0 for up."""
        return self.keys("Test Board", step)

    def keys(self, device, step):
        lines = [line.split("|")[1].split() for line in self.eyes[step] if line.startswith(f"{device}|1 ")]
        return [(int(code), int(value)) for _, code, value, _ in lines if value != "2"]

    def touches(self, step):
        return [line for line in self.libinput.get(step, []) if "TOUCH_" in line]

    def test_nothing_went_wrong(self):
        self.assertEqual(self.files["problems"], [])

    def test_the_list_tells_what_is_taken(self):
        rows = [re.sub(r"^/dev/input/event\d+  ", "", line) for line in self.files["list"]]
        self.assertIn('keyboard  "Test Board"  taken', rows)
        self.assertIn('mouse  "Test Rat"  taken', rows)
        self.assertIn('keyboard  "tavi keyboard"  not taken: a guest\'s own device', rows)

    def test_who_lacks_rights_is_told_what_gives_them(self):
        text = "\n".join(self.files["rights"])
        without, member = text.split("player\n")[0], text.split("player\n")[1].split("tavi play: /dev/uinput")[0]
        self.assertIn("/dev/input/event1  not readable: Permission denied", without)
        self.assertIn("/dev/uinput is not writable; it is needed to create the touch screen", without)
        self.assertIn("As root: adduser YOUR-NAME input. Then log out and in again.", without)
        self.assertIn("list 1\n", without)
        self.assertIn('keyboard  "Test Board"  taken', member)
        self.assertIn("list 0\n", member)
        self.assertIn('you have no "tavi play" running under the name "play"\ncontrol 1', member)
        self.assertTrue(text.endswith("\nplay 1"), text)

    def test_the_script_is_seen_as_it_was_simulated(self):
        self.assertEqual(self.screen("script"), fingers_of(simulate(SCRIPT)))

    def test_a_gamepad_is_seen_as_it_was_simulated(self):
        pad_keymap = WORK / "root" / "pad.yaml"
        self.assertEqual(self.screen("pad"), fingers_of(simulate(f"joymap {pad_keymap}\n{PAD_SCRIPT}")))

    def test_typed_text_is_seen_as_it_was_simulated(self):
        names = {"KEY_H": 35, "KEY_I": 23, "KEY_1": 2, "KEY_LEFTSHIFT": 42, "KEY_ENTER": 28}
        expected = [(names[code], int(value)) for device, kind, code, value in events_of(simulate(TYPED_SCRIPT))
                    if device == "keyboard" and kind == "EV_KEY"]
        self.assertEqual(len(expected), 10)  # h, i, 1 with Shift, Enter
        self.assertEqual(self.keys("tavi keyboard", "typed"), expected)
        self.assertEqual(self.screen("typed"), [])

    def test_libinput_sees_the_same_fingers(self):
        seen = self.touches("script")
        count = len(fingers_of(simulate(SCRIPT)))
        self.assertEqual(sum("TOUCH_DOWN" in line for line in seen), count)
        self.assertEqual(sum("TOUCH_UP" in line for line in seen), count)
        self.assertFalse([line for line in self.libinput["script"] if "KEYBOARD_KEY" in line])

    def test_grabbed_keys_reach_no_other_reader(self):
        self.assertEqual(self.board("script"), [])

    def test_the_pause_key_gives_the_keyboard_back(self):
        self.assertIn((57, 1), self.board("pause"))
        self.assertIn((57, 0), self.board("pause"))
        self.assertEqual(self.screen("pause"), [])

    def test_the_pause_key_takes_it_again(self):
        self.assertEqual(self.board("resume"), [(88, 1), (88, 0)])
        self.assertEqual(self.screen("resume"), [{"places": [(1203, 533)], "up": True}])

    def test_the_panic_key_lifts_everything_and_gives_the_keyboard_back(self):
        walk = self.screen("panic")
        self.assertEqual([finger["up"] for finger in walk], [True])
        self.assertIn((57, 1), self.board("panic"))

    def test_a_script_switches_keymaps(self):
        answers = self.files["answers"]
        self.assertEqual(answers[:2], ["text on: ok", "text off: ok"])
        answers = answers[2:]
        self.assertRegex(answers[0], r"^state: mapping off, keymap.yaml \(\d+ items\), 1280x720, 2 keyboards, 1 mouse")
        self.assertEqual(answers[1:3], ["resume: ok", "keymap /other.yaml: ok"])
        self.assertEqual(answers[3], 'kemap /other.yaml: tavi play: unknown word "kemap"; did you mean "keymap"?')
        self.assertEqual(self.screen("control"), [{"places": [(128, 144)], "up": True}])

    def test_parts_of_a_notch_add_up(self):
        first_weapon = {"places": [(563, 662)], "up": True}  # 0.44 of 1280, 0.92 of 720
        self.assertEqual(self.screen("wheel"), [first_weapon])

    def test_what_the_kernel_had_no_room_for_is_made_up_for(self):
        walk, jump = self.screen("lost")
        self.assertTrue(walk["up"])
        self.assertEqual(jump, {"places": [(1203, 533)], "up": True})

    def test_without_new_devices_the_old_ones_go_on(self):
        refused, taken = (line for line in self.files["answers"] if line.startswith("size 640x360: "))
        self.assertEqual(refused, 'size 640x360: tavi play: there is no /dev/uinput here; "modprobe uinput" as root '
                                  "may bring it")
        self.assertEqual(taken, "size 640x360: ok")
        self.assertEqual(self.screen("size"), [{"places": [(1203, 533)], "up": True}])
        self.assertEqual(self.screen("smaller"), [{"places": [(602, 266)], "up": True}])  # 0.94 of 640, 0.74 of 360

    def test_a_macro_without_an_end_leaves_nobody_without_a_keyboard(self):
        for step in ("stuck", "stuck at SIGTERM"):
            with self.subTest(step):
                self.assertEqual(self.screen(step), [{"places": [(384, 288)], "up": True}])  # 0.3 of 1280, 0.4 of 720
                self.assertEqual(self.board(step)[-2:], [(57, 1), (57, 0)])
        told = [line for line in self.files["news"] if "input is no longer handled" in line]
        self.assertEqual(len(told), 2)

    def test_records_and_the_window_reach_the_same_devices(self):
        fingers = fingers_of(run(TAVI, "record", "play", WORK / "root" / "record.json"))
        self.assertEqual(len(fingers), 2)  # the tap and the walk
        self.assertEqual(self.screen("record"), fingers)
        self.assertEqual(self.screen("window")[-1:], fingers[-1:])

    def test_unplugging_with_a_key_down_lifts_the_walk(self):
        self.assertEqual([finger["up"] for finger in self.screen("unplug")], [True])

    def test_a_signal_lifts_what_is_down(self):
        for step in ("TERM", "KILL"):
            with self.subTest(step):
                self.assertEqual([finger["up"] for finger in self.screen(step)], [True])
                seen = self.touches(step)
                self.assertEqual(sum("TOUCH_DOWN" in line for line in seen), 1)
                self.assertEqual(sum("TOUCH_UP" in line for line in seen), 1, seen)
        self.assertEqual(self.files["status"], ["after SIGTERM 143", "after SIGKILL 137", "stuck 1",
                                                "stuck at SIGTERM 143", "record 0", "window 143"])


class KernelCompositor(unittest.TestCase):
    """A client of a compositor that forgets the fingers of a removed device."""

    def test_no_finger_stays_down_for_a_client(self):
        files = boot("compositor.sh")
        self.assertEqual(files["problems"], [])
        client = steps(files["client"])
        for step in ("TERM", "KILL"):
            with self.subTest(step):
                seen = re.findall(r" wl_touch@\d+\.(down|up|cancel)\(", "\n".join(client[step]))
                self.assertEqual(seen, ["down", "up"])


@unittest.skipUnless(BARE, "without the bare loop there is nothing to compare with")
class KernelRace(unittest.TestCase):
    def test_a_key_takes_no_more_than_a_few_times_the_time_of_a_bare_loop(self):
        files = boot("race.sh", STEADY)
        self.assertEqual(files["problems"], [])
        rounds = latencies(files)
        medians = {runner: [statistics.median(times) for times in found] for runner, found in rounds.items()}
        ratio = statistics.median(play / bare for play, bare in zip(medians["play"], medians["bare"]))
        print(f"\nmedians in us: bare {medians['bare']}, play {medians['play']}; ratio {ratio:.2f}")
        for runner in rounds:
            self.assertEqual([len(times) for times in rounds[runner]], [150] * 4)
        self.assertLessEqual(ratio, MOST_TIMES_BARE)


if __name__ == "__main__":
    reason = missing()
    if reason:
        print("Skipped:", reason)
        sys.exit(77)
    WORK.mkdir(parents=True, exist_ok=True)
    unittest.main(argv=sys.argv[:1], verbosity=2)
