#!/usr/bin/python3
"""Listens on the real accessibility bus for what a screen reader would hear.

Starts its own X server and session bus (which activates the AT-SPI bus and registry), runs the
application with a throw-away home, opens the System Junk channel the way an assistive client does
(the tab's press action) and passes when a notification that starts showing on the bus carries the
scan's announcement: Orca speaks a notification at that moment, by its name. Exits 77 when the
tools for this are not installed.

usage: hear_announcement.py PATH_TO_ZEPHRANE
"""

import ctypes
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import traceback
import warnings

SKIP = 77
DEADLINE_SECONDS = 35
ANNOUNCEMENT = re.compile(r"^Scan finished, .+ found$")
JUNK_TAB = "System Junk channel"
LAUNCHER_DIRS = ["/usr/libexec", "/usr/lib/at-spi2-core", "/usr/lib/x86_64-linux-gnu/at-spi2-core",
                 "/usr/lib/aarch64-linux-gnu/at-spi2-core"]


def skip(reason):
    print(f"SKIP: {reason}")
    sys.exit(SKIP)


def check_tools():
    for tool in ("Xvfb", "dbus-daemon"):
        if not shutil.which(tool):
            skip(f"{tool} is not installed")
    if not any(os.path.exists(os.path.join(d, "at-spi-bus-launcher")) for d in LAUNCHER_DIRS):
        skip("at-spi-bus-launcher is not installed")
    try:
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi  # noqa: F401
    except (ImportError, ValueError) as error:
        skip(f"no AT-SPI client library for Python ({error})")


def make_home(root):
    """A home with a little junk in it and every XDG folder inside it."""
    home = os.path.join(root, "home")
    for folder in (".cache/fixture-app", ".npm/_cacache", ".config", ".local/share", ".local/state", "runtime"):
        os.makedirs(os.path.join(home, folder), exist_ok=True)
    os.chmod(os.path.join(home, "runtime"), 0o700)
    with open(os.path.join(home, ".cache/fixture-app/blob"), "wb") as blob:
        blob.write(os.urandom(256 * 1024))
    with open(os.path.join(home, ".npm/_cacache/index"), "wb") as index:
        index.write(b"x" * 4096)
    return home


def private_environment(home):
    return {
        "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
        "HOME": home,
        "XDG_CONFIG_HOME": os.path.join(home, ".config"),
        "XDG_CACHE_HOME": os.path.join(home, ".cache"),
        "XDG_DATA_HOME": os.path.join(home, ".local/share"),
        "XDG_STATE_HOME": os.path.join(home, ".local/state"),
        "XDG_RUNTIME_DIR": os.path.join(home, "runtime"),
        "XDG_DATA_DIRS": "/usr/local/share:/usr/share",
        "LANG": "en_US.UTF-8",
        "LANGUAGE": "en_US",
    }


class Children:
    """Every process this test starts. Each leads its own process group, so what the session bus
    activates for us (bus launcher, accessibility bus, registry) goes down with it; and this process
    adopts orphans, so nothing that slipped out of its group outlives the test either."""

    def __init__(self, log):
        self.started = []
        self.log = log
        PR_SET_CHILD_SUBREAPER = 36
        ctypes.CDLL(None, use_errno=True).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)

    def start(self, argv, **kwargs):
        process = subprocess.Popen(argv, start_new_session=True, stdout=self.log, stderr=self.log, **kwargs)
        self.started.append(process)
        return process

    def stop_all(self):
        for process in reversed(self.started):
            self._signal_group(process.pid, signal.SIGTERM)
        end = time.monotonic() + 3
        for process in reversed(self.started):
            try:
                process.wait(max(0.1, end - time.monotonic()))
            except subprocess.TimeoutExpired:
                pass
            self._signal_group(process.pid, signal.SIGKILL)
        for _ in range(50):
            orphans = self._adopted()
            for pid in orphans:
                self._signal_group(pid, signal.SIGKILL)
                try:
                    os.kill(pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass
            self._reap()
            if not orphans:
                break
            time.sleep(0.05)

    @staticmethod
    def _signal_group(pid, sig):
        try:
            os.killpg(pid, sig)
        except (ProcessLookupError, PermissionError):
            pass

    @staticmethod
    def _reap():
        while True:
            try:
                pid, _ = os.waitpid(-1, os.WNOHANG)
            except ChildProcessError:
                return
            if pid == 0:
                return

    @staticmethod
    def _adopted():
        me = os.getpid()
        pids = []
        for entry in os.listdir("/proc"):
            if not entry.isdigit():
                continue
            try:
                with open(f"/proc/{entry}/stat") as stat:
                    fields = stat.read().rsplit(")", 1)[1].split()
            except OSError:
                continue
            if int(fields[1]) == me and fields[0] != "Z":
                pids.append(int(entry))
        return pids


def read_line_from(children, argv, env=None):
    """Starts a program that writes one line (a display number, a bus address) to the given fd."""
    read_end, write_end = os.pipe()
    children.start([arg.format(fd=write_end) for arg in argv], pass_fds=(write_end,), env=env)
    os.close(write_end)
    with os.fdopen(read_end) as pipe:
        line = pipe.readline().strip()
    if not line:
        raise RuntimeError(f"{argv[0]} did not start")
    return line


def find(accessible, predicate, depth=0):
    if accessible is None or depth > 40:
        return None
    if predicate(accessible):
        return accessible
    for index in range(accessible.get_child_count()):
        found = find(accessible.get_child_at_index(index), predicate, depth + 1)
        if found:
            return found
    return None


def listen(children, program, env):
    """Runs the application and returns (passed, reason, what was heard)."""
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib

    Atspi.init()
    loop = GLib.MainLoop()
    heard = []
    outcome = {"passed": False, "why": f"nothing matching {ANNOUNCEMENT.pattern!r} within {DEADLINE_SECONDS} s"}

    def guarded(callback):
        """A failure inside a callback ends the run with its story instead of vanishing in GLib."""
        def run(*args):
            try:
                return callback(*args)
            except Exception:
                outcome["why"] = traceback.format_exc()
                loop.quit()
                return False
        return run

    def on_event(event):
        try:
            role, name = event.source.get_role(), event.source.get_name() or ""
        except GLib.Error:
            return  # gone before it could be asked
        heard.append(f"{event.type} detail1={event.detail1} role={role.value_nick} name={name!r}")
        if event.type.startswith("object:state-changed:showing") and event.detail1 == 1 \
                and role == Atspi.Role.NOTIFICATION and ANNOUNCEMENT.match(name):
            outcome.update(passed=True, why=f"a notification showed with {name!r}")
            loop.quit()

    # Registered before the application starts, so its bridge sends these from the first moment.
    listener = Atspi.EventListener.new(guarded(on_event))
    kinds = ("object:state-changed:showing", "object:property-change:accessible-name",
             "object:property-change:accessible-value")
    for kind in kinds:
        listener.register(kind)

    app = children.start([program], env=dict(env, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb",
                                              QT_QUICK_BACKEND="software"))
    pressed = []

    def open_junk_channel():
        if app.poll() is not None:
            outcome["why"] = f"the application exited with {app.returncode}"
            loop.quit()
            return False
        if pressed:
            return True
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(index)
            if application is None or (application.get_name() or "").lower() != "zephrane":
                continue
            tab = find(application, lambda a: a.get_role() == Atspi.Role.PAGE_TAB and a.get_name() == JUNK_TAB)
            if tab is None:
                continue
            with warnings.catch_warnings():
                warnings.simplefilter("ignore", DeprecationWarning)  # its successor is not introspected
                actions = [Atspi.Action.get_action_name(tab, i) for i in range(Atspi.Action.get_n_actions(tab))]
            if "Press" in actions and Atspi.Action.do_action(tab, actions.index("Press")):
                pressed.append(tab)
        return True

    GLib.timeout_add(250, guarded(open_junk_channel))
    GLib.timeout_add_seconds(DEADLINE_SECONDS, loop.quit)
    loop.run()
    for kind in kinds:
        listener.deregister(kind)
    if not pressed and not outcome["passed"]:
        outcome["why"] += f"; the tab {JUNK_TAB!r} was never pressed"
    return outcome["passed"], outcome["why"], heard


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    program = os.path.abspath(sys.argv[1])
    check_tools()

    root = tempfile.mkdtemp(prefix="zephrane-a11y-")
    try:
        log_path = os.path.join(root, "processes.log")
        with open(log_path, "w") as log:
            children = Children(log)
            try:
                env = private_environment(make_home(root))
                env["DISPLAY"] = ":" + read_line_from(
                    children, ["Xvfb", "-displayfd", "{fd}", "-screen", "0", "1280x800x24", "-nolisten", "tcp"])
                env["DBUS_SESSION_BUS_ADDRESS"] = read_line_from(
                    children, ["dbus-daemon", "--session", "--nofork", "--print-address={fd}"], env)
                # The client finds the accessibility bus through this process's own environment.
                os.environ.clear()
                os.environ.update(env)
                passed, why, heard = listen(children, program, env)
            finally:
                children.stop_all()
        print(f"{'PASS' if passed else 'FAIL'}: {why}\nHeard on the bus:")
        print("\n".join("  " + line for line in heard) or "  nothing")
        if passed:
            return 0
        with open(log_path) as log:
            print("Output of the processes:\n" + log.read())
        return 1
    finally:
        shutil.rmtree(root, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
