// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/help_file.h"
#include "core/help_search.h"

#include <QWidget>

#include <memory>

class QAction;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace orvalis {

class ChmFile;
class HelpPageView;
class Shell;

/// The window of the help: contents or findings at the left, the page at the right, and back,
/// forward and home above them.
class HelpViewer final : public QWidget {
    Q_OBJECT
public:
    explicit HelpViewer(Shell& shell);
    ~HelpViewer() override;

    /// Opens the file on its first page. A file that is no compiled help is told on the page.
    void open(const QString& path);

private:
    QWidget* makeSide();
    QWidget* makePageSide();
    void fillContents();
    void readPages();
    void search(const QString& query);
    void follow(const QUrl& link);
    void markPageInContents(const QUrl& page);

    Shell& m_shell;
    std::unique_ptr<ChmFile> m_file;
    QList<HelpPage> m_pages;
    QLineEdit* m_search = nullptr;
    QStackedWidget* m_side = nullptr;
    QTreeWidget* m_contents = nullptr;
    QListWidget* m_findings = nullptr;
    HelpPageView* m_page = nullptr;
};

/// The program's help display: one viewer window, made at the first use.
class HelpWindow final : public HelpDisplay {
public:
    explicit HelpWindow(Shell& shell);
    ~HelpWindow() override;

    WId HtmlHelpA(WId owner, const QString& path, int command, quint32 data) override;

private:
    Shell& m_shell;
    std::unique_ptr<HelpViewer> m_viewer;
};

} // namespace orvalis
