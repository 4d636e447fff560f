#include "app/window/DroppedFile.h"

#include "common/path/UrlPath.h"

#include <QCoreApplication>
#include <QStringList>

namespace thisapp {

using namespace tessaly;

namespace {

struct DropText
{
    Q_DECLARE_TR_FUNCTIONS(DroppedFile)
};

QString problemText(const DroppedFile& drop, io::InputCheck check)
{
    if (drop.path.isEmpty())
        return DropText::tr("Only a file on this computer can be dropped here.");
    switch (check) {
    case io::InputCheck::Usable:
        break;
    case io::InputCheck::NotFound:
        return DropText::tr("The dropped file is not found.");
    case io::InputCheck::NotRegular:
        return DropText::tr("Only a single file can be encrypted or decrypted, not a folder or a device.");
    }
    return {};
}

} // namespace

QStringList droppedFiles(const QList<QUrl>& urls)
{
    QStringList files;
    for (const QUrl& url : urls)
        if (const QString path = urlPath(url); !path.isEmpty())
            files += path;
    return files;
}

Message dropMessage(const DroppedFile& drop, io::InputCheck check)
{
    const bool isFine = !drop.path.isEmpty() && !drop.othersLeft && check == io::InputCheck::Usable;
    if (isFine)
        return {};
    return {MessageKind::Warning, [drop, check] {
                QStringList sentences{problemText(drop, check)};
                if (drop.othersLeft)
                    sentences += DropText::tr("Only one of the dropped files was taken.");
                sentences.removeAll(QString());
                return sentences.join(' ');
            }};
}

} // namespace thisapp
