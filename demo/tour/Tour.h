#pragma once

#include "TourClient.h"
#include "TourDaemon.h"

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// Uses the client as a person does, who reads and presses what is in its window and in
/// the tray's menu, while it runs in a process of its own against the simulated daemon.
/// Prints one line a step with what was seen, both in the window and in the daemon.
class Tour final
{
    Q_DISABLE_COPY_MOVE(Tour)

public:
    /// The demonstration and its daemon are programs of `directory`; pictures go to
    /// `pictures`.
    Tour(const QString &directory, const QString &pictures);

    /// Walks until something isn't as it should be; true when everything was. The daemon
    /// gets the `arguments`.
    bool run(const QStringList &arguments);

private:
    /// Something to do or to see. `done` is asked again and again until it is true.
    struct Part
    {
        QString words;
        std::function<bool()> done;
    };
    using Matcher = TourClient::Matcher;

    // Things to do
    Part press(const QString &button);
    Part press(const QString &words, const Matcher &matches);
    Part tabAndPress(const QString &button);
    Part open(const QString &page);
    Part type(const QString &field, const QString &text);
    Part key(const QString &name, int keySymbol);
    Part click(const QString &entry);
    Part tell(const QString &command);

    // Things to see
    Part reads(const QString &label);
    Part reads(const QString &words, const Matcher &matches);
    Part lists(const QString &words, const Matcher &matches);
    Part hasButton(const QString &words, const Matcher &matches);
    Part hasButton(const QString &button);
    Part stands(const QString &field, const QString &text);
    Part offers(const QString &entry);
    Part ticked(const QString &entry, bool on);
    Part holds(const QString &path, const QString &value);
    Part holds(const QString &words, const std::function<bool(const TourDaemon &daemon)> &check);

    void start(const QStringList &arguments);
    void signIn();
    void connectAndCancel();
    void useTray();
    void findPlace();
    void changeMode();
    void editRules();
    void lockDown();
    void changeAddresses();
    void changeSwitches();
    void update();
    void changeLanguage();

    /// The last entry of the tray's menu, whatever its language.
    Part quit();
    Part left();

    void step(const QString &name, const QList<Part> &parts);
    void report(bool ok, const QString &name, const QString &words, qint64 ms);
    void takePicture(const QString &name);

    QString m_directory;
    QString m_pictures;
    TourDaemon m_daemon;
    TourClient m_client;
    QImage m_icon; ///< As the tray showed it last.
    int m_steps = 0;
    bool m_failed = false;
};
