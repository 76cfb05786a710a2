// makecone.cpp -- makecone: writes the soundings of the sample cone hole, CP-111.DAT: 2,000 lines, one each 0.02 feet.
//
//     makecone CP-111.DAT
//
// Two header lines, then depth, tip resistance (tsf), sleeve friction (tsf) and pore pressure (feet of water), parted
// by commas. The layers are those that CP-111.BOR describes; a fixed sequence stands for chance, so that the file is
// the same on every machine. Exit status: 0 written, 1 the file could not be written, 2 a wrong command line.
#include <cmath>
#include <fstream>
#include <iostream>
#include <iterator>

namespace
{
struct Layer {
    double bottom;   // feet
    double tip;      // tsf, at its middle
    double friction; // ratio of sleeve to tip
    double excess;   // pore pressure above that of the water at rest, feet
    double rough;    // of its own mean
    double growth;   // of the tip resistance with each foot
};
} // namespace

constexpr Layer Layers[] = {{1.2, 95, 0.010, 0, 0.25, 0},      {5.4, 38, 0.022, 0, 0.40, 0},
                            {6.8, 22, 0.015, 0, 0.20, 0},      {10.6, 9, 0.041, 14, 0.08, 0.3},
                            {13.1, 34, 0.014, 1, 0.22, 0},     {16.4, 7, 0.035, 31, 0.05, 0.2},
                            {31.5, 118, 0.006, -2, 0.10, 2.1}, {40, 262, 0.008, -3, 0.12, 3}};
constexpr double WaterTable = 12.9, Step = 0.02;
constexpr int Lines = 2000;

static double Chance() // -1 to 1
{
    static unsigned seed = 111;
    seed = seed * 1664525u + 1013904223u;
    return (seed >> 8) / 8388608.0 - 1;
}

static double Rounded(double value, double unit)
{
    return std::floor(value / unit + 0.5) * unit;
}

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "makecone: makecone FILE.DAT\n";
        return 2;
    }
    std::ofstream out(argv[1], std::ios::binary);
    out << "CP-111,10 cm2 cone,tip before friction sleeve and pore pressure\r\n"
           "depth (ft),tip (tsf),sleeve (tsf),pore pressure (ft)\r\n";
    out.setf(std::ios::fixed);
    double smoothed = 0, tip = Layers[0].tip;
    for (int i = 1; i <= Lines; ++i) {
        const double depth = i * Step;
        const Layer* layer = std::begin(Layers);
        double top = 0;
        while (depth > layer->bottom && layer + 1 != std::end(Layers))
            top = (layer++)->bottom;
        // The cone feels a layer some tenths of a foot before and behind its contact.
        smoothed = 0.9 * smoothed + 0.1 * Chance();
        const double middle = (top + layer->bottom) / 2;
        tip += 0.06 * (layer->tip + layer->growth * (depth - middle) - tip);
        const double told = std::fmax(tip * (1 + 2 * layer->rough * smoothed), 0.5);
        const double water = std::fmax(depth - WaterTable, 0) + layer->excess * (1 + 0.3 * smoothed);
        out.precision(2);
        out << depth << ',' << Rounded(told, 0.01) << ',';
        out.precision(3);
        out << Rounded(told * layer->friction * (1 + 0.05 * Chance()), 0.001) << ',';
        out.precision(1);
        out << Rounded(water, 0.1) << "\r\n";
    }
    out.close();
    return out ? 0 : 1;
}
