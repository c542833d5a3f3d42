namespace {

int number() {
  return 1;
}

}  // namespace

int numberOfTwin() {
  return number();
}
