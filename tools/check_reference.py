#!/usr/bin/env python3
"""Checks that the documents agree with the public interface: see reference.py."""

import sys

import reference

if __name__ == "__main__":
    sys.exit(reference.main(["--check"]))
