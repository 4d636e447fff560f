"""A program whose memory can be read although it bars other processes from it: its parent traces it from its first
instruction on, and may hold it at its last."""
import ctypes
import fcntl
import os
import re
import signal
import subprocess
import termios

PTRACE_TRACEME, PTRACE_CONT, PTRACE_SETOPTIONS = 0, 7, 0x4200
CHUNK = 1 << 16
EXIT_KILL, TRACE_EXIT, EVENT_EXIT = 1 << 20, 1 << 6, 6
libc = ctypes.CDLL(None, use_errno=True)
libc.ptrace.argtypes = [ctypes.c_long, ctypes.c_long, ctypes.c_void_p, ctypes.c_void_p]


def ptrace(request, pid, data=0):
    if libc.ptrace(request, pid, None, data) != 0:
        raise OSError(ctypes.get_errno(), "ptrace")


class Traced:
    def __init__(self, arguments, terminal=None, **options):
        """`terminal` becomes the one that it asks at."""
        def prepare():
            if terminal is not None:
                os.setsid()
                fcntl.ioctl(terminal, termios.TIOCSCTTY, 0)
            libc.ptrace(PTRACE_TRACEME, 0, None, None)
        self.process = subprocess.Popen(arguments, preexec_fn=prepare, **options)
        self.pid = self.process.pid
        os.waitpid(self.pid, 0)
        # Opened before the program bars others; they stay open.
        self.memory = open(f"/proc/{self.pid}/mem", "rb", buffering=0)
        self.maps = open(f"/proc/{self.pid}/maps", "rb", buffering=0)
        ptrace(PTRACE_SETOPTIONS, self.pid, EXIT_KILL | TRACE_EXIT)
        ptrace(PTRACE_CONT, self.pid)
        self.held = False

    def end(self):
        """Its exit code, or what killed it as a negative number, of a program that is held at its end."""
        ptrace(PTRACE_CONT, self.pid)
        self.process.returncode = os.waitstatus_to_exitcode(os.waitpid(self.pid, 0)[1])
        self.memory.close()
        self.maps.close()
        return self.process.returncode

    def hold_at_end(self):
        """Returns when it has done all it does; its memory is still there."""
        while not self.held:
            self.poll(0)

    def poll(self, options=os.WNOHANG):
        """Hands signals on."""
        if self.held:
            return
        pid, status = os.waitpid(self.pid, options)
        if pid and not os.WIFSTOPPED(status):
            raise RuntimeError(f"ended unseen: {status}")
        if pid and status >> 16 == EVENT_EXIT:
            self.held = True
        elif pid:
            number = os.WSTOPSIG(status)
            ptrace(PTRACE_CONT, self.pid, 0 if number == signal.SIGTRAP else number)

    def mappings(self):
        """(first, last, name) of all that can be read and is not just a file's content."""
        self.maps.seek(0)
        text = b"".join(iter(lambda: self.maps.read(1 << 16), b"")).decode(errors="replace")
        for first, last, permissions, inode, name in re.findall(
                r"(?m)^(\w+)-(\w+) (\S+) \S+ \S+ (\d+) *(.*)$", text):
            if permissions[0] == "r" and (permissions[1] == "w" or inode == "0") and name not in ("[vvar]", "[vsyscall]"):
                yield int(first, 16), int(last, 16), f"{first} {permissions} {name}"

    def read(self):
        """(where, bytes) of each mapping; pages that nobody has touched are left out."""
        for first, last, name in self.mappings():
            pages = []
            for at in range(first, last, CHUNK):
                try:
                    pages.append(os.pread(self.memory.fileno(), min(CHUNK, last - at), at))
                except OSError:  # gone meanwhile
                    break
            if content := b"".join(page for page in pages if page.count(0) < len(page)):
                yield name, content
