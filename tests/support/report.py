"""Collects checks, runs them in random order and prints what the caller of a test program needs."""
import random
import sys
import traceback

from arxhost import windows

_checks = []


class Skipped(Exception):
    """This machine lacks what the test needs; says what."""


def check(function):
    """Marks a function as a test; its name is a sentence about the product."""
    _checks.append((function.__name__.replace("_", " "), function))
    return function


def not_on_windows(why):
    """Marks a test of what arxhost for Windows does not do, or does in its own way."""
    return _left_out_where(windows, why)


def only_on_windows(why):
    """Marks a test of what only arxhost for Windows has."""
    return _left_out_where(lambda: not windows(), why)


def _left_out_where(is_out, why):
    def marked(function):
        def run():
            if is_out():
                raise Skipped(why)
            function()
        run.__name__ = function.__name__
        return run
    return marked


def add(name, function, *arguments):
    _checks.append((name, lambda: function(*arguments)))


def expect(holds, what):
    if not holds:
        raise AssertionError(what)


def expect_equal(got, wanted, what):
    expect(got == wanted, f"{what}: got {got!r}, expected {wanted!r}")


def run_all(seed=None):
    """Runs everything and ends the program: status 0 only when all passed and there was something."""
    seed = seed if seed is not None else random.randrange(1, 100000)
    print(f"random order, seed {seed}")
    random.Random(seed).shuffle(_checks)
    failed = 0
    skipped = []
    for name, function in _checks:
        try:
            function()
        except Skipped as reason:
            skipped.append(reason)
        except AssertionError as error:
            failed += 1
            print(f"FAILED {name}\n    {error}")
        except Exception:  # a broken test is a failed one; the others still run
            failed += 1
            print(f"FAILED {name}\n{traceback.format_exc()}")
    for reason in sorted(set(map(str, skipped))):
        print(f"SKIPPED {sum(str(one) == reason for one in skipped)} tests: {reason}")
    print(f"{len(_checks) - failed - len(skipped)} passed, {failed} failed")
    sys.exit(1 if failed or len(skipped) == len(_checks) else 0)
