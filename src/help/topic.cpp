#include "help/topic.h"

namespace qarn {

QUrl UrlOfTopic(const HelpFile& file, const QString& topic) {
    const QString name = topic.section('#', 0, 0);
    QUrl url;
    url.setScheme("help");
    url.setPath("/" + (name.isEmpty() ? QString::fromStdString(file.StartPage()) : name));
    if (topic.contains('#')) url.setFragment(topic.section('#', 1));
    return url;
}

QString NameInFile(const QUrl& url) {
    const QString path = url.path();
    return path.startsWith('/') ? path.mid(1) : path;
}

QString ReadPage(const HelpFile& file, const QString& name) {
    const std::string* page = file.Find(name.toStdString());
    return page == nullptr ? QString() : QString::fromStdString(*page);
}

}  // namespace qarn
