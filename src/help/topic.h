#pragma once

#include <QString>
#include <QUrl>

#include "help/help_file.h"

namespace qarn {

/// The address in the viewer of a topic: a page's name, with "#" and an anchor where wanted. An
/// empty topic is the start page.
QUrl UrlOfTopic(const HelpFile& file, const QString& topic);

/// The name in the help file of what an address stands for, without its anchor.
QString NameInFile(const QUrl& url);

/// The text of a page. Empty when there is no such page.
QString ReadPage(const HelpFile& file, const QString& name);

}  // namespace qarn
