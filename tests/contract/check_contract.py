#!/usr/bin/python3
"""Checks the command line of arxhost from outside."""
import answers  # noqa: F401
import badfiles  # noqa: F401
import dialog  # noqa: F401
import files  # noqa: F401
import plot  # noqa: F401
import session  # noqa: F401
import terminal  # noqa: F401
import unsaved  # noqa: F401
import windowsconsole  # noqa: F401
from common import need_built, run_all

need_built()
run_all()
