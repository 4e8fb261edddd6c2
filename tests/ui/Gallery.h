// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/support/LogFile.h"
#include "tests/ui/UpdateWorld.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class PlumeMainWindow;
class QStackedWidget;
class RVControlFrame;
class RVSection;

/// Every page and every dialog of the library in each of its states, filled with an example's
/// content: for whatever has to hold for all of them, in every language.
/// All content has "data" or "example" in it, or no words.
class Gallery
{
public:
    struct View {
        QString name;
        QWidget *window;
        /// Brings the window into the state.
        std::function<void()> enter;
    };

    Gallery();
    ~Gallery();

    const std::vector<View> &views() const { return m_views; }
    PlumeMainWindow *window() const { return m_window.get(); }
    /// What a user reads or hears of a window, piece by piece, hidden parts included: a line says
    /// where it stands and what it says. The same window gives the same number of lines again.
    struct Text {
        QString place;
        QString text;
    };
    static QList<Text> texts(const QWidget &window);

private:
    Q_DISABLE_COPY_MOVE(Gallery)
    void makeSystem();
    void addPages();
    void addSectionViews();
    void addBusyDialogs();
    void addTableDialogs();
    void addDialogs();
    void add(const QString &name, QWidget *window, const std::function<void()> &enter = {});
    template<class Dialog, class... Arguments>
    Dialog *own(Arguments &&...arguments);
    void showSection(int index, int page);

    LogFile m_log;
    UpdateWorld m_world;
    UpdateWorld m_emptyWorld;
    FakeSystem m_system;
    RVPaths m_paths;
    std::unique_ptr<PlumeMainWindow> m_window;
    QStackedWidget *m_stack = nullptr;
    QWidget *m_mainPage = nullptr;
    std::unique_ptr<RVSection> m_section;
    std::vector<std::unique_ptr<QObject>> m_owned;
    std::vector<View> m_views;
};
