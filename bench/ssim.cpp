// SPDX-License-Identifier: Apache-2.0

// The mean structural similarity of two grey PGM images of one size, over windows of 8 x 8 pixels
// at every fourth (Wang, Bovik, Sheikh and Simoncelli, 2004): 1 for equal ones.

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

namespace {

struct Image {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> pixels;
};

Image read(const char *path) {
    std::ifstream file(path, std::ios::binary);
    std::string magic;
    int most = 0;
    Image image;
    file >> magic >> image.width >> image.height >> most;
    file.get();
    image.pixels.resize(static_cast<std::size_t>(image.width) * image.height);
    file.read(reinterpret_cast<char *>(image.pixels.data()),
              static_cast<std::streamsize>(image.pixels.size()));
    return magic == "P5" && most == 255 && file ? image : Image();
}

constexpr int kSide = 8;

double windowSimilarity(const Image &a, const Image &b, int left, int top) {
    double sumA = 0, sumB = 0, sumAA = 0, sumBB = 0, sumAB = 0;
    for (int y = top; y < top + kSide; ++y) {
        for (int x = left; x < left + kSide; ++x) {
            const double p = a.pixels[static_cast<std::size_t>(y) * a.width + x];
            const double q = b.pixels[static_cast<std::size_t>(y) * a.width + x];
            sumA += p, sumB += q, sumAA += p * p, sumBB += q * q, sumAB += p * q;
        }
    }
    constexpr double kCount = kSide * kSide;
    constexpr double kC1 = 0.01 * 255 * 0.01 * 255;
    constexpr double kC2 = 0.03 * 255 * 0.03 * 255;
    const double meanA = sumA / kCount;
    const double meanB = sumB / kCount;
    const double variances = (sumAA + sumBB) / kCount - meanA * meanA - meanB * meanB;
    const double covariance = sumAB / kCount - meanA * meanB;
    return (2 * meanA * meanB + kC1) * (2 * covariance + kC2) /
           ((meanA * meanA + meanB * meanB + kC1) * (variances + kC2));
}

} // namespace

int main(int argc, char **argv) {
    const Image a = read(argc == 3 ? argv[1] : "");
    const Image b = read(argc == 3 ? argv[2] : "");
    if (a.pixels.empty() || a.width != b.width || a.height != b.height) {
        std::fputs("usage: ssim ONE.pgm OTHER.pgm, both of one size\n", stderr);
        return 1;
    }
    double sum = 0;
    long count = 0;
    for (int y = 0; y + kSide <= a.height; y += kSide / 2) {
        for (int x = 0; x + kSide <= a.width; x += kSide / 2, ++count) {
            sum += windowSimilarity(a, b, x, y);
        }
    }
    std::printf("%.5f\n", count ? sum / static_cast<double>(count) : 1.0);
}
