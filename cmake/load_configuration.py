"""load_configuration.py PROGRAM: announces the load configuration of a Windows program in its header.

src/runtime/win32/programs/lean/load_configuration.cpp puts it there under a mark, which is cleared here."""
import struct
import sys

MARK = 0x464C4E51
DIRECTORY = 10  # IMAGE_DIRECTORY_ENTRY_LOAD_CONFIG
SIZES = {0x10B: 92, 0x20B: 148}
# Windows XP takes the size in the directory for a version, and knows this one alone on x86.
ANNOUNCED = {0x10B: 64, 0x20B: 148}


def address_of(data, headers, position):
    """Where a place of the file is in the loaded program."""
    sections, optional = struct.unpack_from("<H", data, headers + 6)[0], struct.unpack_from("<H", data, headers + 20)[0]
    for i in range(sections):
        at = headers + 24 + optional + 40 * i
        address, size, start = struct.unpack_from("<III", data, at + 12)
        if start <= position < start + size:
            return address + position - start
    sys.exit("the load configuration lies in no section")


def checksum(data, field):
    """As Windows counts it: 16-bit words with their carries, without the field itself, and the size."""
    data = data[:field] + bytes(4) + data[field + 4:] + bytes(len(data) % 2)
    total = sum(struct.unpack(f"<{len(data) // 2}H", data))
    while total > 0xFFFF:
        total = (total & 0xFFFF) + (total >> 16)
    return total


def main(path):
    with open(path, "rb") as file:
        data = bytearray(file.read())
    headers = struct.unpack_from("<I", data, 0x3C)[0]
    magic = struct.unpack_from("<H", data, headers + 24)[0]
    wanted = struct.pack("<II", SIZES[magic], MARK)
    position = data.find(wanted)
    if position < 0 or data.find(wanted, position + 1) >= 0:
        sys.exit(f"{path} does not hold one load configuration")
    struct.pack_into("<I", data, position + 4, 0)
    directory = headers + 24 + (112 if magic == 0x20B else 96) + 8 * DIRECTORY
    struct.pack_into("<II", data, directory, address_of(data, headers, position), ANNOUNCED[magic])
    struct.pack_into("<I", data, headers + 24 + 64, checksum(bytes(data), headers + 24 + 64) + len(data))
    with open(path, "wb") as file:
        file.write(data)


main(sys.argv[1])
