// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QUrl>

namespace orvalis {

class ChmFile;

/// The address under which a page view knows a file of the help, perhaps with "#anchor".
QUrl helpAddress(const QString& file);
/// Whether an address is one of those, and not one of the world outside.
bool isHelpAddress(const QUrl& address);

/// Shows the pages of a compiled help file, straight from the file.
class HelpPageView final : public QTextBrowser {
    Q_OBJECT
public:
    explicit HelpPageView(QWidget* parent);

    /// The file must outlive its use here; a null file shows that the help cannot be read.
    void setFile(const ChmFile* file);
    /// Goes to a page by its path in the file, perhaps with "#anchor".
    void go(const QString& page);

    /// Marks the words wherever they stand, on this page and those that it is left for.
    void setMarkedWords(const QList<QRegularExpression>& words);
    /// Brings the first marked word into sight, where there is one.
    void goToFirstMark();

    QVariant loadResource(int type, const QUrl& name) override;

private:
    /// A picture of the file, made ready for the screen that the page is on.
    QImage picture(const QByteArray& content) const;
    void markWords();

    const ChmFile* m_file = nullptr;
    QList<QRegularExpression> m_markedWords;
};

} // namespace orvalis
