// Opens and saves the screenshot of a folder with a blur drawn on it: save_steps FOLDER. Ends with 1 when
// that could not be done.

#include "base/FilePath.h"
#include "editor/SavedShot.h"
#include "support/EditStore.h"

#include <QCoreApplication>

#include <cstdlib>

using namespace tembra;

int main(int argc, char **argv) {
    if (argc != 2)
        return EXIT_FAILURE;
    const QCoreApplication application(argc, argv);
    EditStore edits(pathFromBytes(argv[1]));
    const auto saved = edits.store.load(edits.path(SavedShot::name), {}).and_then([&](const auto &loaded) {
        return edits.store.save(loaded, SavedShot::newAnnotations(), {});
    });
    return saved ? EXIT_SUCCESS : EXIT_FAILURE;
}
