#include "ui/algorithms/AlgListFiller.h"

#include "ui/algorithms/ICryptoAlgProvider.h"

#include <QComboBox>
#include <QListWidget>
#include <QStandardItemModel>

namespace thisapp {

namespace {

/// Calls append(name, data, enabled) for each entry that the provider yields.
template <class Append>
void forEachAlg(const ICryptoAlgProvider& provider, Append append)
{
    for (int index = 0; index < provider.count(); ++index) {
        AlgSelection selection;
        bool enabled = false;
        if (provider.entry(index, selection, enabled))
            append(provider.displayName(selection), QVariant::fromValue(selection), enabled);
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

void fillAlgList(QListWidget& list, const ICryptoAlgProvider& provider)
{
    list.clear();
    forEachAlg(provider, [&list](const QString& name, const QVariant& data, bool enabled) {
        auto* item = new QListWidgetItem(name);
        item->setData(Qt::UserRole, data);
        setUsable(*item, enabled);
        list.addItem(item);
    });
}

void fillAlgList(QComboBox& box, const ICryptoAlgProvider& provider)
{
    // A combo box without a model of the caller's own stands on one of standard items.
    auto* model = qobject_cast<QStandardItemModel*>(box.model());
    Q_ASSERT(model);
    box.clear();
    forEachAlg(provider, [model](const QString& name, const QVariant& data, bool enabled) {
        auto* item = new QStandardItem(name);
        item->setData(data, Qt::UserRole);
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
