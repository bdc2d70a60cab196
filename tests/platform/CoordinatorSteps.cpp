// Saves a screenshot with its record in the folder that it is told: coordinator_steps FOLDER [contested].
// Ends with 1 when something could not be done. Contested, another program puts "theirs" in the place of the
// screenshot at the worst moment.

#include "base/FilePath.h"
#include "platform/linux/LinuxFileCoordinator.h"

#include <cstdlib>
#include <sys/syscall.h>
#include <unistd.h>

using namespace tembra;

namespace {

const QByteArray newContent(100'000, 'n');

bool save(const QString &folder, bool isContested) {
    const LinuxFileCoordinator files;
    const QString record = folder + QStringLiteral("/records/1/record.json");
    const QString pending = folder + QStringLiteral("/records/1/pending.json");
    const QString shot = folder + QStringLiteral("/shot.png");
    const QString temporary = folder + QStringLiteral("/.tembra-edit-1.png");
    const QByteArray theirs = pathBytes(folder + QStringLiteral("/theirs"));
    const auto isOld = [&](QByteArrayView content) {
        // Not one of the calls that go wrong.
        if (isContested)
            ::syscall(SYS_rename, theirs.constData(), pathBytes(shot).constData());
        return content.startsWith('o');
    };
    return files.makePrivateFolder(folder + QStringLiteral("/records/1")) &&
           files.writeAtomically(pending, newContent) &&
           files.writeTemporary(temporary, newContent, shot, {}) &&
           files.replace(shot, temporary, newContent, isOld) && files.writeAtomically(record, newContent) &&
           files.remove(pending);
}

} // namespace

int main(int argc, char **argv) {
    if (argc < 2)
        return EXIT_FAILURE;
    return save(pathFromBytes(argv[1]), argc > 2) ? EXIT_SUCCESS : EXIT_FAILURE;
}
