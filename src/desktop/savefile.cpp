// SPDX-License-Identifier: MIT
#include "desktop/savefile.h"

#include <QSaveFile>

#include <utility>

namespace {

SaveDialog saveDialog;

} // namespace

SaveDialog setSaveDialog(SaveDialog dialog)
{
    return std::exchange(saveDialog, std::move(dialog));
}

QString askForFileName(const SaveRequest &request)
{
    Q_ASSERT_X(saveDialog, "askForFileName", "setSaveDialog() was not called");
    return saveDialog(request);
}

bool saveFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}
