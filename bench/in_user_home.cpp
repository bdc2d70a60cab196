// in_user_home COUNT COMMAND…: becomes the command, as a user who is past the onboarding and has so many
// captures. The home stays, for bench/run to remove.

#include "UserHome.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

int main(int argc, char **argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: in_user_home COUNT COMMAND...\n");
        return 2;
    }
    const tembra::bench::UserHome home(std::atoi(argv[1]));
    execvp(argv[2], argv + 2);
    std::perror(argv[2]);
    return EXIT_FAILURE;
}
