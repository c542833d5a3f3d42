namespace {

int number() {
  return 2;
}

}  // namespace

int numberOfOtherTwin() {
  return number();
}
