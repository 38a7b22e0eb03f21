// SPDX-License-Identifier: MIT
// Fetches pictures behind the user's back: one request for each file at a time, at most 20 MB and 20 seconds.
#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>
#include <functional>
#include <map>
#include <string>
#include <vector>

class QNetworkReply;

namespace kev {

struct FetchLimits {
  qint64 bytes = 20LL * 1024 * 1024;
  int milliseconds = 20'000;
};

class PictureFetcher final : public QObject {
  Q_OBJECT

 public:
  using Done = std::function<void(bool)>;

  explicit PictureFetcher(FetchLimits limits = {}, QObject* parent = nullptr);

  // http, https and ftp; any other address fails. The file appears whole or not at all. `done` always runs
  // later, from the event loop, unless the fetcher ends first.
  void Fetch(const QUrl& address, const std::string& file, Done done);

 private:
  void StartHttp(const QUrl& address, const std::string& file);
  void StartFtp(const QUrl& address, const std::string& file);
  void Finish(const std::string& file, bool good, const QByteArray& bytes);

  FetchLimits limits_;
  QNetworkAccessManager network_;
  // Who waits for each file that is on its way.
  std::map<std::string, std::vector<Done>> waiting_;
};

}  // namespace kev
