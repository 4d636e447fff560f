#pragma once

#include "common/settings/AlgSelection.h"

#include <QMetaType>

class QComboBox;
class QListWidget;

Q_DECLARE_METATYPE(thisapp::AlgSelection)

namespace thisapp {

class ICryptoAlgProvider;

/// Lists the provider's algorithms anew, in its order: the display name as text, the AlgSelection
/// in the user role, the columns as AlgColumns.h has them, advice as tool tip. A disabled algorithm is
/// listed greyed and can't be chosen. With recommendedFirst the recommended ones stand before the others.
void fillAlgList(QListWidget& list, const ICryptoAlgProvider& provider, bool recommendedFirst = false);
/// Likewise; leaves no item current.
void fillAlgList(QComboBox& box, const ICryptoAlgProvider& provider);

/// The row that can be chosen and holds this selection; -1 for none.
int findAlg(const QListWidget& list, const AlgSelection& selection);
int findAlg(const QComboBox& box, const AlgSelection& selection);

} // namespace thisapp
