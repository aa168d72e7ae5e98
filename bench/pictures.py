"""The pictures that the workloads place."""

import random
import struct
import subprocess

from measuring import progress

# As in Workload.h.
PICTURE_WIDTH, PICTURE_HEIGHT, PICTURE_COUNT = 2001, 2000, 20


def make_pictures(folder):
    """Pictures of small squares in random colours: 0.jpg to 19.jpg and 0.bmp to 19.bmp."""
    folder.mkdir()
    colours = random.Random(20240229)
    sizes = []
    for number in range(PICTURE_COUNT):
        progress(f"picture {number + 1} of {PICTURE_COUNT}")
        rows = []
        for _ in range(0, PICTURE_HEIGHT, 8):
            row = b"".join(colours.randbytes(3) * 8 for _ in range(0, PICTURE_WIDTH, 8))
            rows += [row[:PICTURE_WIDTH * 3]] * 8
        portable = b"P6\n%d %d\n255\n" % (PICTURE_WIDTH, PICTURE_HEIGHT) + b"".join(rows)
        jpeg = subprocess.run(["cjpeg", "-baseline", "-quality", "20"], input=portable, check=True,
                              stdout=subprocess.PIPE).stdout
        (folder / f"{number}.jpg").write_bytes(jpeg)
        sizes.append(len(jpeg))

        # What stands for red, green and blue is as good as blue, green and red.
        pixels = b"".join(row + bytes(-len(row) % 4) for row in rows)
        headers = struct.pack("<2sIIIIiiHHIIiiII", b"BM", 54 + len(pixels), 0, 54, 40,
                              PICTURE_WIDTH, PICTURE_HEIGHT, 1, 24, 0, len(pixels), 0, 0, 0, 0)
        (folder / f"{number}.bmp").write_bytes(headers + pixels)
    progress("")
    print(f"The JPEG files have {min(sizes):,} to {max(sizes):,} bytes.")
