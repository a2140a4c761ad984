# SPDX-FileCopyrightText: 2026 The Orvalis developers
# SPDX-License-Identifier: MIT
#
# The precompiled headers: what many sources of a kind include, and no more, for each costs every one of them
# some time. The tests are compiled without optimisation, so theirs are their own.
set(text_headers
  <QByteArray> <QCoreApplication> <QDir> <QFile> <QFileInfo> <QGuiApplication> <QImage> <QList>
  <QPainter> <QRegularExpression> <QString> <QStringList> <QTextBlock> <QTextCursor> <QTextDocument>
  <QTextList> <QTimer> <QUrl>
  <algorithm> <array> <functional> <memory> <optional> <utility> <variant> <vector>)
set(widget_headers
  ${text_headers}
  <QApplication> <QComboBox> <QCheckBox> <QGroupBox> <QLabel> <QLineEdit> <QMenu> <QMouseEvent>
  <QPointer> <QScreen> <QScrollBar> <QStyleOption> <QTableView> <QTextEdit> <QWidget> <QWindow>)
set(test_headers <QSignalSpy> <QTemporaryDir> <QTest>)

orvalis_precompiled_headers(texts LINKS Qt6::Gui HEADERS ${text_headers})
orvalis_precompiled_headers(widgets LINKS Qt6::Widgets HEADERS ${widget_headers})
if(ORVALIS_TESTS)
  orvalis_precompiled_headers(text_tests LINKS Qt6::Gui Qt6::Test
    HEADERS ${text_headers} ${test_headers} OPTIONS ${ORVALIS_TEST_OPTIONS})
  orvalis_precompiled_headers(widget_tests LINKS Qt6::Widgets Qt6::Test
    HEADERS ${widget_headers} ${test_headers} OPTIONS ${ORVALIS_TEST_OPTIONS})
endif()
