#ifndef FENN_TEST_PICTURE_FILES_H
#define FENN_TEST_PICTURE_FILES_H

#include <string>

// Picture files byte by byte, as the formats have them; written without a look at the reader.

inline void put_high_first(std::string& bytes, std::size_t at, unsigned value, int size) {
    for (int i = size - 1; i >= 0; --i, value >>= 8)
        bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(value);
}

inline void put_low_first(std::string& bytes, std::size_t at, unsigned value) {
    bytes[at] = static_cast<char>(value);
    bytes[at + 1] = static_cast<char>(value >> 8);
}

// What the pictures below show: each channel of each place has a value of its own. The row counts from the
// top.
inline unsigned char sample(int x, int y, int channel) {
    return static_cast<unsigned char>(1 + x / 3 + 40 * y + 7 * channel);
}

struct RgbFile {
    int width = 7, height = 3, channels = 4;
    bool packed = false;

    std::string header() const {
        std::string bytes(512, 0);
        put_high_first(bytes, 0, 474, 2);
        bytes[2] = packed ? 1 : 0;
        bytes[3] = 1;
        put_high_first(bytes, 4, channels > 1 ? 3 : 2, 2);
        put_high_first(bytes, 6, static_cast<unsigned>(width), 2);
        put_high_first(bytes, 8, static_cast<unsigned>(height), 2);
        put_high_first(bytes, 10, static_cast<unsigned>(channels), 2);
        put_high_first(bytes, 16, 255, 4);
        return bytes;
    }
    // Red, green, blue, alpha, in planes, the lowest row first.
    std::string row(int channel, int stored) const {
        std::string bytes;
        for (int x = 0; x < width; ++x)
            bytes += static_cast<char>(sample(x, height - 1 - stored, channel));
        return bytes;
    }
    // Runs of equal bytes as one repeated byte, single ones as copies.
    static std::string pack(const std::string& row) {
        std::string bytes;
        for (std::size_t at = 0, end; at < row.size(); at = end) {
            for (end = at + 1; end < row.size() && end - at < 127 && row[end] == row[at];)
                ++end;
            const bool run = end - at > 1;
            bytes += static_cast<char>(run ? end - at : 0x81);
            bytes += row[at];
        }
        return bytes + '\0';
    }
    std::string bytes() const {
        std::string file = header();
        if (!packed) {
            for (int channel = 0; channel < channels; ++channel)
                for (int y = 0; y < height; ++y)
                    file += row(channel, y);
            return file;
        }
        const std::size_t rows = static_cast<std::size_t>(height) * static_cast<std::size_t>(channels);
        file.resize(512 + 8 * rows);
        for (std::size_t i = 0; i < rows; ++i) {
            const std::string data = pack(row(static_cast<int>(i) / height, static_cast<int>(i) % height));
            put_high_first(file, 512 + 4 * i, static_cast<unsigned>(file.size()), 4);
            put_high_first(file, 512 + 4 * (rows + i), static_cast<unsigned>(data.size()), 4);
            file += data;
        }
        return file;
    }
};

struct TgaFile {
    int width = 7, height = 3;
    int type = 2, bits = 32; // 1 indexed, 2 coloured, 3 grey; 8 more: packed
    bool top_first = false;
    std::string note = "";

    std::string header() const {
        std::string bytes(18, 0);
        bytes[0] = static_cast<char>(note.size());
        bytes[2] = static_cast<char>(type);
        if (indexed()) {
            bytes[1] = 1;
            put_low_first(bytes, 5, 256);
            bytes[7] = 24;
        }
        put_low_first(bytes, 12, static_cast<unsigned>(width));
        put_low_first(bytes, 14, static_cast<unsigned>(height));
        bytes[16] = static_cast<char>(bits);
        bytes[17] = top_first ? 0x20 : 0;
        return bytes + note;
    }
    bool indexed() const { return (type & 7) == 1; }
    // Blue, green, red, alpha; of an index its low byte.
    std::string pixel(int x, int y) const {
        std::string bytes;
        for (int i = 0; i < (bits + 7) / 8; ++i)
            bytes += static_cast<char>(indexed() && i > 0 ? 0 : sample(x, y, indexed() || bits == 8 ? 0 : i));
        return bytes;
    }
    // Runs of three are repeated, as the samples come in threes.
    void add_packed(std::string& file, int y) const {
        for (int x = 0; x < width; x += 3) {
            const int count = width - x < 3 ? width - x : 3;
            const bool run = x % 2 == 0;
            file += static_cast<char>((run ? 0x80 : 0) | (count - 1));
            for (int i = 0; i < (run ? 1 : count); ++i)
                file += pixel(x + i, y);
        }
    }
    std::string bytes() const {
        std::string file = header();
        if (indexed())
            for (int i = 0; i < 256; ++i)
                file += {static_cast<char>(i), static_cast<char>(255 - i), static_cast<char>(i / 2)};
        for (int stored = 0; stored < height; ++stored) {
            const int y = top_first ? stored : height - 1 - stored;
            if (type & 8)
                add_packed(file, y);
            else
                for (int x = 0; x < width; ++x)
                    file += pixel(x, y);
        }
        return file;
    }
};

#endif
