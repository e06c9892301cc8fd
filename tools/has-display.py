#!/usr/bin/env python3
"""Succeeds when there is an X display in DISPLAY that takes connections."""

import ctypes
import os
import sys


def is_usable(name):
    try:
        x11 = ctypes.CDLL("libX11.so.6")
    except OSError:
        return False
    x11.XOpenDisplay.restype = ctypes.c_void_p
    return bool(name) and x11.XOpenDisplay(name.encode()) is not None


if __name__ == "__main__":
    sys.exit(0 if is_usable(os.environ.get("DISPLAY")) else 1)
