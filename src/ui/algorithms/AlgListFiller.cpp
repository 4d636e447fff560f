#include "ui/algorithms/AlgListFiller.h"

#include "ui/algorithms/AlgAdviceText.h"
#include "ui/algorithms/AlgColumns.h"
#include "ui/algorithms/ICryptoAlgProvider.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QListWidget>
#include <QStandardItemModel>
#include <QTextDocument>

namespace thisapp {

namespace {

struct AlgListFiller
{
    Q_DECLARE_TR_FUNCTIONS(AlgListFiller)
};

const tessaly::crypto::CatalogueEntry* entryOf(const AlgSelection& selection)
{
    return selection.library == tessaly::crypto::CryptoPPLibraryId
               ? tessaly::crypto::findAlgorithm(selection.algorithm)
               : nullptr;
}

bool isRecommended(const AlgSelection& selection)
{
    const auto* entry = entryOf(selection);
    return entry != nullptr && entry->advice == tessaly::crypto::AlgAdvice::Recommended;
}

/// What a screen reader speaks, and the filter searches.
QString spoken(const QString& name, const QStringList& columns)
{
    QString text = AlgListFiller::tr("%1, key %2 bits").arg(name, columns[0]);
    if (!columns[1].isEmpty())
        text += AlgListFiller::tr(", blocks of %1 bits").arg(columns[1]);
    for (const QString& column : {columns[2], columns[3]})
        if (!column.isEmpty())
            text += QStringLiteral(", ") + column;
    return text;
}

/// `set` takes a role and its value; name and selection come first.
template <class Set>
void describe(const AlgSelection& selection, const QString& name, Set set)
{
    set(Qt::UserRole, QVariant::fromValue(selection));
    const auto* entry = entryOf(selection);
    if (entry == nullptr)
        return set(Qt::AccessibleTextRole, name);
    const auto bits = [](std::uint64_t bytes) { return bytes > 0 ? QString::number(bytes * 8) : QString(); };
    const auto& record = entry->record;
    const SAlgAdvice advice = algAdvice(entry->advice);
    const QStringList columns{bits(record.keyLength), bits(record.blockLength),
                              QString::fromLatin1(tessaly::crypto::modeName(record.mode).data()),
                              advice.remark};
    set(AlgColumnsRole, columns);
    set(AlgKindRole, static_cast<int>(advice.kind));
    set(Qt::AccessibleTextRole, spoken(name, columns));
    if (!advice.sentence.isEmpty())
        set(Qt::ToolTipRole, Qt::convertFromPlainText(advice.sentence, Qt::WhiteSpaceNormal));
}

/// Calls append(name, selection, enabled) for each entry that the provider yields.
template <class Append>
void forEachAlg(const ICryptoAlgProvider& provider, Append append)
{
    for (int index = 0; index < provider.count(); ++index) {
        AlgSelection selection;
        bool enabled = false;
        if (provider.entry(index, selection, enabled))
            append(provider.displayName(selection), selection, enabled);
    }
}

template <class Item>
void setUsable(Item& item, bool usable)
{
    if (!usable)
        item.setFlags(item.flags() & ~(Qt::ItemIsEnabled | Qt::ItemIsSelectable));
}

int findRow(const QAbstractItemModel& model, const AlgSelection& selection)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        if (index.flags().testFlag(Qt::ItemIsEnabled) &&
            index.data(Qt::UserRole).value<AlgSelection>() == selection)
            return row;
    }
    return -1;
}

} // namespace

void fillAlgList(QListWidget& list, const ICryptoAlgProvider& provider, bool recommendedFirst)
{
    list.clear();
    int firstRows = 0;
    forEachAlg(provider, [&](const QString& name, const AlgSelection& selection, bool enabled) {
        auto* item = new QListWidgetItem(name);
        describe(selection, name, [item](int role, const QVariant& value) { item->setData(role, value); });
        setUsable(*item, enabled);
        const bool first = recommendedFirst && isRecommended(selection);
        list.insertItem(first ? firstRows++ : list.count(), item);
    });
}

void fillAlgList(QComboBox& box, const ICryptoAlgProvider& provider)
{
    // A combo box without a model of the caller's own stands on one of standard items.
    auto* model = qobject_cast<QStandardItemModel*>(box.model());
    Q_ASSERT(model);
    box.clear();
    forEachAlg(provider, [model](const QString& name, const AlgSelection& selection, bool enabled) {
        auto* item = new QStandardItem(name);
        describe(selection, name, [item](int role, const QVariant& value) { item->setData(value, role); });
        setUsable(*item, enabled);
        model->appendRow(item);
    });
    box.setCurrentIndex(-1);
}

int findAlg(const QListWidget& list, const AlgSelection& selection)
{
    return findRow(*list.model(), selection);
}

int findAlg(const QComboBox& box, const AlgSelection& selection)
{
    return findRow(*box.model(), selection);
}

} // namespace thisapp
