# The usage text.
# shellcheck shell=bash

cmd_help() {
    cat <<'TEXT'
usage: ./vellora COMMAND

  build [x86|x64|native]...     compile; without a name x86 and x64. Leaves
                                dist/ARCH/VelloraCTL.ocx and its symbols.
                                native is the portable code with sanitizers.
  test [OPTIONS]                build and run the tests
      --ring native|com|screen  only this ring (may be repeated)
      --arch x86|x64|all        only this kind of library
      --filter PATTERN          only tests whose name contains PATTERN
      --generation next         on the Wine of the distribution's next release
                                instead of this one's
      --keep                    leave display and Wine running for a look
  fuzz [SECONDS]                change saved settings and forms at random under
                                sanitizers, from where the last run ended (300 s).
                                A fault leaves its input in build/fuzz/failures
  wine [OPTIONS] PROGRAM [ARGS] run a Windows program in the test bed; its exit
                                code is handed back (the low eight bits)
      --64                      a 64-bit one
      --generation next         as above
  demo                          show the demonstration; without a display it
                                plays itself and leaves pictures
  demo container [FORM]         a form designer to try the control in by hand:
                                its properties, methods and events
  bench [SUBJECT...]            run the benchmark; typing, sorting and so on,
                                all of it without a name
  package                       make dist/VelloraCTL-VERSION.zip for a download; the
                                same commit gives the same bytes
  pictures [NAME...]            take the pictures of the documents anew
  help                          this text

The whole output of the last run's tests is in build/results. Runs have prefixes
of their own, so several may go on at the same time.

Every command first sets up what it needs, once: packages of the distribution,
and for 32-bit programs a private root with the 32-bit Wine in the cache folder.
The next release's Wine, 32-bit and 64-bit, gets roots of its own there.

variables:
  VELLORA_CACHE      where the test bed is kept (~/.cache/vellora)
  VELLORA_DPI        dots per inch for programs: 96 (default), 120 or 144
  VELLORA_ARTIFACTS  where pictures go (build/artifacts/ARCH, with another
                     resolution build/artifacts/ARCH-DPI)
  WINEDEBUG          Wine's own messages (-all: none)
  CI                 when set, print only what failed and the sums
TEXT
}
