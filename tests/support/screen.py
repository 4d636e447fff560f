"""Keys, windows and the clipboard of an X server, without a window manager."""
import time

from Xlib import X, XK, display
from Xlib.ext import xtest
from Xlib.protocol import event

PATIENCE = 60  # seconds, for a loaded machine


def eventually(look, what, seconds=PATIENCE):
    end = time.monotonic() + seconds
    while not (answer := look()):
        if time.monotonic() > end:
            raise TimeoutError(what)
        time.sleep(0.01)
    return answer


class Screen:
    def __init__(self, name=None):
        self.display = display.Display(name)
        self.root = self.display.screen().root
        self.own = self.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)

    def find(self, title):
        """A window that is shown under this title."""
        for window in self.root.query_tree().children:
            try:
                name = window.get_full_text_property(self.display.intern_atom("_NET_WM_NAME")) or window.get_wm_name()
                if name and title in str(name) and window.get_attributes().map_state == X.IsViewable:
                    return window
            except Exception:  # it went meanwhile
                continue
        return None

    def await_window(self, title):
        window = eventually(lambda: self.find(title), f"no window of {title}")
        self.focus(window)
        return window

    def await_gone(self, title):
        eventually(lambda: not self.find(title), f"the window of {title} stays")

    def focus(self, window):
        def has_focus():
            window.set_input_focus(X.RevertToParent, X.CurrentTime)
            self.display.sync()
            return self.display.get_input_focus().focus == window
        eventually(has_focus, "no focus")

    def key(self, *strokes):
        """Each by its name, behind those of what is held, such as Alt_L+p."""
        for stroke in strokes:
            codes = [self.display.keysym_to_keycode(XK.string_to_keysym(name)) for name in stroke.split("+")]
            for code in codes:
                xtest.fake_input(self.display, X.KeyPress, code)
            for code in reversed(codes):
                xtest.fake_input(self.display, X.KeyRelease, code)
        self.display.sync()

    def type(self, *texts):
        """Of lower-case letters and digits, into fields that follow one another."""
        for i, text in enumerate(texts):
            self.key(*["Tab"] * (i > 0), *text)

    def close(self, window):
        """As the button of a title bar does."""
        atom = self.display.intern_atom
        window.send_event(event.ClientMessage(window=window, client_type=atom("WM_PROTOCOLS"),
                                              data=(32, [atom("WM_DELETE_WINDOW"), 0, 0, 0, 0])))
        self.display.sync()

    def click_last_button(self, window):
        """In the corner at the right."""
        box = window.get_geometry()
        corner = window.translate_coords(self.root, 0, 0)
        xtest.fake_input(self.display, X.MotionNotify, x=box.width - 40 - corner.x, y=box.height - 25 - corner.y)
        for action in (X.ButtonPress, X.ButtonRelease):
            xtest.fake_input(self.display, action, 1)
        self.display.sync()

    def clipboard(self):
        """Its text; empty when it has none, or its owner is this test."""
        if self.display.get_selection_owner(self.display.intern_atom("CLIPBOARD")) in (X.NONE, self.own):
            return ""
        names = [self.display.intern_atom(name) for name in ("CLIPBOARD", "UTF8_STRING", "QUILLET_TEST")]
        self.own.convert_selection(names[0], names[1], names[2], X.CurrentTime)
        while (answer := self.display.next_event()).type != X.SelectionNotify:
            pass
        if answer.property == X.NONE:
            return ""
        return self.own.get_full_property(names[2], X.AnyPropertyType).value.decode()

    def take_clipboard(self):
        """Whoever had it lets go of what he had there."""
        self.own.set_selection_owner(self.display.intern_atom("CLIPBOARD"), X.CurrentTime)
        self.display.sync()
