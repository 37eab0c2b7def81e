#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>

namespace vigrel::testing {

// A desktop that shows the icons that are told to it over the message bus: the watcher that keeps their list,
// and the panel that shows them. It has to live in another thread than the icon, which waits for its answers.
class cBusHost : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ HasPanel)
    Q_PROPERTY(int ProtocolVersion READ Version)

  public:
    ~cBusHost() override {
        StopWatcher();
        QDBusConnection::disconnectFromBus("desktop");
    }
    bool Start() {
        m_Panel = true;
        return m_Bus.registerObject(kPath, this, QDBusConnection::ExportAllContents) &&
               m_Bus.registerService(kService);
    }
    void StopPanel() {
        m_Panel = false;
        emit StatusNotifierHostUnregistered();
    }
    void StartPanel() {
        m_Panel = true;
        emit StatusNotifierHostRegistered();
    }
    void StopWatcher() {
        m_Bus.unregisterService(kService);
        m_Bus.unregisterObject(kPath);
    }

    bool HasPanel() const { return m_Panel; }
    int Version() const { return 0; }
    bool HasIcon() const { return !m_Icon.isEmpty(); }
    // "Activate", "SecondaryActivate", "ContextMenu": what a panel makes of clicks.
    bool Click(const char* gesture) {
        QDBusMessage call = QDBusMessage::createMethodCall(m_Icon, "/StatusNotifierItem",
                                                           "org.kde.StatusNotifierItem", gesture);
        call << 0 << 0;
        return m_Bus.send(call);
    }

  public slots:  // NOLINT(readability-redundant-access-specifiers): the toolkit reads it
    void RegisterStatusNotifierItem(const QString& service) { m_Icon = service; }

  signals:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

  private:
    static constexpr const char* kService = "org.kde.StatusNotifierWatcher";
    static constexpr const char* kPath = "/StatusNotifierWatcher";

    QDBusConnection m_Bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "desktop");
    bool m_Panel = false;
    QString m_Icon;  // the one that came last: the name of its service
};

}  // namespace vigrel::testing
