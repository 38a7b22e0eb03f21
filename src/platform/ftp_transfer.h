// SPDX-License-Identifier: MIT
// Fetches one file by FTP: passive mode, binary, without a name unless the address holds one. The window
// system's network access knows http alone.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QTcpSocket>
#include <QUrl>

namespace kev {

class FtpTransfer final : public QObject {
  Q_OBJECT

 public:
  FtpTransfer(QUrl address, qint64 mostBytes, QObject* parent = nullptr);
  // Says nothing more, even where Finished has not been told.
  ~FtpTransfer() override;

  void Start();
  void Abort() { End(false); }
  const QByteArray& Bytes() const { return bytes_; }

 Q_SIGNALS:
  // Once. Bytes holds the whole file if it is good.
  void Finished(bool good);

 private:
  void ReadReplies();
  void HandleReply(int code, const QByteArray& line);
  void SendNext();
  void OpenData(const QByteArray& reply);
  void TakeData();
  void CheckComplete();
  void End(bool good);

  QUrl address_;
  qint64 mostBytes_;
  QTcpSocket control_;
  QTcpSocket data_;
  QByteArray bytes_;
  int step_ = 0;
  bool dataEnded_ = false;
  bool confirmed_ = false;
  bool ended_ = false;
};

}  // namespace kev
