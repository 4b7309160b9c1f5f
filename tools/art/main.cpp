// dibuja DATA-FOLDER OUT-FOLDER: makes every picture of the game.
#include <cstdio>
#include <exception>

#include "tools/art/pictures.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: dibuja DATA-FOLDER OUT-FOLDER\n", stderr);
        return 2;
    }
    try {
        zarpel::DrawAll(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "dibuja: %s\n", error.what());
        return 1;
    }
}
