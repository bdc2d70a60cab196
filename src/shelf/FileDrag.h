#pragma once

#include <QImage>
#include <QList>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace tembra {

class FileFactsReader;

// Drags files out of the shelf, always as copies; those that are not there any more are left out. Returns
// when the drag has ended, and at once while another one is under way. `pictures` are those of the first
// files.
void dragFiles(QWidget &source, const QStringList &paths, const FileFactsReader &files,
               const QList<QImage> &pictures);

} // namespace tembra
