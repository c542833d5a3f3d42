# The one thing that whoever publishes the package must set: where the packages that go with the
# extension are found. docs/publishing.md says how. DOZEWELL_REPOSITORY_DEFINITION is what the
# extension is compiled with, in both of its homes.
set(repository_placeholder "https://repo.corvane.example/")
set(DOZEWELL_REPOSITORY_URL ${repository_placeholder} CACHE STRING
    "Address of the package repository, which the extension tells its users")

# An address stands in a string literal and in the middle of a sentence.
if(NOT DOZEWELL_REPOSITORY_URL MATCHES "^https?://[A-Za-z0-9][-A-Za-z0-9.]*(:[0-9]+)?(/[-A-Za-z0-9._~%/?#&=+@:]*)?$")
  message(FATAL_ERROR
    "DOZEWELL_REPOSITORY_URL is no address of the kind https://repo.example.org/, without quotes and blanks: "
    "[${DOZEWELL_REPOSITORY_URL}]")
endif()
if(DOZEWELL_DEVICE AND DOZEWELL_REPOSITORY_URL STREQUAL repository_placeholder)
  message(WARNING
    "DOZEWELL_REPOSITORY_URL is still the placeholder ${repository_placeholder}: users would be sent to a place that does "
    "not exist. Set it before you publish a package; see docs/publishing.md.")
endif()

set(DOZEWELL_REPOSITORY_DEFINITION "DOZEWELL_REPOSITORY_URL=\"${DOZEWELL_REPOSITORY_URL}\"")
