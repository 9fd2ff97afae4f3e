#pragma once

#include "service/DataStorage.h"

#include <QWidget>

#include <memory>

class pvApplication_c;

namespace Ui
{
class LogInPage;
}

/// The "Log In" tab: hands e-mail address and password to its session. Keeps no logged-in state of its own
/// and stores nothing between runs.
class LogInPage : public QWidget
{
    Q_OBJECT

public:
    /// @param application the host; not owned.
    LogInPage(pvApplication_c* application, QWidget* parent);
    ~LogInPage() override;

public slots:
    /// Sends the login with whatever the two fields hold; the service decides.
    void OnClick();

private:
    DataStorage m_session;
    std::unique_ptr<Ui::LogInPage> m_form;
    pvApplication_c* m_application;
    QWidget* m_parent;
};
