// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

struct chmFile;

namespace orvalis {

/// A line of the table of contents. A line without a page only heads those under it.
struct ChmTopic {
    QString name;
    QString page; ///< Path of the page without the leading "/", perhaps with "#anchor"; or empty.
    int depth = 0;
};

/// A compiled help file (.chm), open for reading.
class ChmFile {
public:
    /// \returns nothing where the file is missing, cut off, damaged or of another kind.
    static std::unique_ptr<ChmFile> open(const QString& path);
    ~ChmFile();
    ChmFile(const ChmFile&) = delete;
    ChmFile& operator=(const ChmFile&) = delete;

    /// What the author put in, pages and pictures, each path without its leading "/".
    const QStringList& files() const { return m_files; }
    /// The content of a file, or a null array where there is no such file or it can't be unpacked.
    QByteArray read(const QString& file) const;

    QString title() const { return m_title; }
    /// The page that is shown first.
    QString defaultTopic() const { return m_defaultTopic; }
    /// The table of contents in its order, each line with its depth, 0 for the outermost.
    QList<ChmTopic> contents() const;

private:
    explicit ChmFile(chmFile* handle);
    void readSystem();

    chmFile* m_handle;
    QStringList m_files;
    QString m_contentsFile;
    QString m_defaultTopic;
    QString m_title;
};

/// Reads a table of contents in the form that compiled help keeps it.
QList<ChmTopic> readSitemap(const QString& html);

} // namespace orvalis
