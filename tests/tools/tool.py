"""Loads a script of tools/ as a module; their names, with a hyphen, cannot be imported."""

import importlib.util
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tools"))  # what the scripts import from each other


def load(name):
    path = ROOT / "tools" / f"{name}.py"
    spec = importlib.util.spec_from_file_location(name.replace("-", "_"), path)
    module = importlib.util.module_from_spec(spec)
    sys.modules[spec.name] = module  # where dataclasses look for it
    spec.loader.exec_module(module)
    return module
