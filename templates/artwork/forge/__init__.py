"""The programs that render the template package.

Importing it settles what numpy may use: its AVX512 routines for sine and the like differ from the
others in the last bit, and now and then such a bit tips a pixel into the next tone.
"""

import os
from pathlib import Path

_WIDE = {"avx512f": "AVX512F", "avx512cd": "AVX512CD", "avx512vl": "AVX512_SKX", "avx512_vnni": "AVX512_CLX"}


def _settle():
    cpu = Path("/proc/cpuinfo")
    flags = cpu.read_text().split() if cpu.is_file() else []
    wide = [name for flag, name in _WIDE.items() if flag in flags]
    if wide:  # naming what the processor lacks would only bring a warning
        os.environ.setdefault("NPY_DISABLE_CPU_FEATURES", " ".join(wide))


_settle()
