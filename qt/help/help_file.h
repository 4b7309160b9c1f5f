// A compiled help file (".chm"), read whole into memory: its pages and pictures, its contents tree, its title
// and first page.
//
// Nothing of the file stays open: it can be replaced while its pages are on the screen.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QUrl>
#include <optional>
#include <vector>

namespace zarpel {

// One entry of the contents tree. Entries come in reading order; `Depth` counts from 0.
struct HelpTopic {
    QString Title;
    QUrl Page;  // empty for a heading without a page of its own
    int Depth = 0;
};

class HelpFile {
  public:
    // Reads the help file at the path `file`. Nothing when there is no such file, or its seal does not fit:
    // what bears the seal is what the build made, and is read without distrust.
    static std::optional<HelpFile> Open(const QString& file);

    // The address of an object of a help file: "chm:" and its path, which begins with "/".
    static QUrl Address(const QString& path);

    const QString& Title() const { return title_; }
    const QUrl& FirstPage() const { return firstPage_; }
    const std::vector<HelpTopic>& Contents() const { return contents_; }

    bool Has(const QUrl& address) const;
    // The bytes of the object at `address` (its anchor does not count). Empty when the file has no such
    // object.
    QByteArray Object(const QUrl& address) const;

  private:
    // By lower-case path: paths in help files do not tell the cases apart.
    QHash<QString, QByteArray> objects_;
    std::vector<HelpTopic> contents_;
    QString title_;
    QUrl firstPage_;
};

// Reads a contents tree in the form the help compiler takes and stores: nested lists of "text/sitemap"
// objects. What it does not understand it skips.
std::vector<HelpTopic> ReadContents(const QByteArray& source);

}  // namespace zarpel
