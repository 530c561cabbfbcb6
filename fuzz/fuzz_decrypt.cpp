// The reader of fully enciphered and tagged files; the first byte asks for the header only.
#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    QByteArray file(reinterpret_cast<const char *>(data + 1), int(size - 1));
    int hw1 = 0;
    int hw2 = 0;
    firmware::decrypt(file, hw1, hw2, outerKey, data[0] & 1);
    return 0;
}
